// The sheet's first page: how pictures are shown.
#pragma once

#include "GalleryPage.h"

class CDisplayPage : public CGalleryPage
{
public:
    CDisplayPage();
    ~CDisplayPage() override;

protected:
    void FillControls() override;
};
