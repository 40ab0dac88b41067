// The sheet's second page: where pictures are kept, and the backup names the file-name class
// makes.
#pragma once

#include "GalleryPage.h"

class CFilesPage : public CGalleryPage
{
public:
    CFilesPage();
    ~CFilesPage() override;

protected:
    void FillControls() override;
};
