#include "strStringW.h"

#include "LocalizationManager.h"

#define KIV_STR_CLASS strStringW
#define KIV_STR_BASE CStringW
#define KIV_STR_CHAR unsigned short
#include "strStringImpl.h"

// A translation that exists wins even over an empty resource string; without one the
// resource text is widened in the ANSI code page.
strStringW::strStringW(unsigned int nID) : CStringW(L"")
{
    CString text;
    text.LoadString(nID);
    LocalizationManager* manager = LocalizationManager::Get();
    if (!manager->IsTranslationMode())
    {
        Format(L"%s", CStringW(text).GetString());
        return;
    }
    CString key;
    key.Format("%d", nID);
    CStringW translation = manager->GetWideTranslation(text, key, "STRINGTABLE");
    if (translation != L"")
        Format(L"%s", translation.GetString());
    else
        Format(L"%s", CStringW(text).GetString());
}
