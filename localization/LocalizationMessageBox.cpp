// LocalizationManager: modal message boxes whose texts are translated under the section
// "STRINGTABLE". Every overload ends in the one that takes a string key and a wide caption.
#include "LocalizationManager.h"

#include "LocalizationKeys.h"

using kiv::localization::KeyText;
using kiv::localization::kStringTableSection;

void LocalizationManager::ShowMessageBox(int id)
{
    ShowMessageBox(id, 0);
}

void LocalizationManager::ShowMessageBox(int id, unsigned int type)
{
    CString text;
    text.LoadString((UINT)id);  // a missing string leaves the text empty
    ShowMessageBox(text, KeyText(id), CStringW(), type);
}

void LocalizationManager::ShowMessageBox(CString text, CString key, CStringW caption, unsigned int type)
{
    if (!IsTranslationMode())
    {
        ::MessageBoxW(nullptr, CStringW(text), caption, type);
        return;
    }
    if (HasTranslation(key, kStringTableSection))
    {
        CStringW translation = GetWideTranslation(CString(), key, kStringTableSection);
        ::MessageBoxW(nullptr, translation, caption, type);
        return;
    }
    CacheTranslation(text, CStringW(), key, kStringTableSection);
    ::MessageBoxA(nullptr, text, CString(caption), type);
}

// The two overloads with a string key and no wide caption show nothing outside translation
// mode: hosts rely on them for texts that exist only while translating.
void LocalizationManager::ShowMessageBox(CString text, CString key, CString caption, unsigned int type)
{
    if (IsTranslationMode())
        ShowMessageBox(text, key, CStringW(caption), type);
}

void LocalizationManager::ShowMessageBox(CString text, CString key, unsigned int type)
{
    if (IsTranslationMode())
        ShowMessageBox(text, key, CStringW(), type);
}

void LocalizationManager::ShowMessageBox(CString text, int key, CString caption, unsigned int type)
{
    ShowMessageBox(text, KeyText(key), CStringW(caption), type);
}

void LocalizationManager::ShowMessageBox(CString text, int key, unsigned int type)
{
    ShowMessageBox(text, KeyText(key), type);
}

void LocalizationManager::ShowMessageBox(CString text, int key, CStringW caption, unsigned int type)
{
    ShowMessageBox(text, KeyText(key), caption, type);
}
