// LocalizationManager: translated texts put onto live windows. A dialog's static texts and
// buttons are walked depth-first in Z order; each gets its translation as wide text and then
// the section, so that a wide-text button can fetch its own caption.
#include "LocalizationManager.h"

#include "LocalizationKeys.h"
#include "TranslationBuffer.h"
#include "UnicodeButton.h"

#include <cstring>

using kiv::localization::KeyText;

namespace {

constexpr int kClassNameSize = 128;
constexpr int kWindowTextSize = 256;

// Only these window classes show a caption that the walk translates; case counts.
bool IsCaptionClass(HWND hWnd)
{
    char className[kClassNameSize] = {};
    ::GetClassNameA(hWnd, className, kClassNameSize);
    return std::strcmp(className, "Static") == 0 || std::strcmp(className, "Button") == 0;
}

// The translation through the fixed buffer of 256 units. A longer one is cut to what fits
// rather than refused, so a window never reads past the buffer and still shows a text.
void SendCaption(HWND hWnd, const CStringW& translation)
{
    wchar_t buffer[kiv::rules::kTranslationBufferUnits];
    std::size_t units =
        kiv::rules::TranslationCopyLength(translation.GetString(), (std::size_t)translation.GetLength());
    std::memcpy(buffer, translation.GetString(), units * sizeof(wchar_t));
    buffer[units] = L'\0';
    ::SendMessageW(hWnd, WM_SETTEXT, 0, (LPARAM)buffer);
}

}  // namespace

int LocalizationManager::TranslateDialog(CWnd* dialog, int dialogId)
{
    if (!IsTranslationMode())
        return 0;
    TranslateDialogRecursive(dialog, KeyText(dialogId));
    return 1;
}

int LocalizationManager::TranslateDialog(CWnd* dialog, CString section)
{
    if (!IsTranslationMode())
        return 0;
    TranslateDialogRecursive(dialog, section);
    return 1;
}

void LocalizationManager::TranslateDialogRecursive(CWnd* parent, CString section)
{
    // A null or window-less parent has no children to walk.
    if (parent != nullptr && parent->m_hWnd != nullptr)
        TranslateChildren(parent->m_hWnd, section);
}

// Handles, not objects, carry the walk: no temporary object per control, and a control that
// destroys itself (and its object) while it is retitled ends the walk of its siblings instead
// of leaving a stale pointer.
void LocalizationManager::TranslateChildren(HWND parent, const CString& section)
{
    for (HWND hWnd = ::GetTopWindow(parent); hWnd != nullptr; hWnd = ::GetWindow(hWnd, GW_HWNDNEXT))
    {
        int id = ::GetDlgCtrlID(hWnd);
        if (id != -1 && IsCaptionClass(hWnd))
        {
            CString key = KeyText(id);
            TranslationEntry* entry = FindTrimmedEntry(key, section);
            if (entry != nullptr && !entry->translatedText.IsEmpty())
            {
                SendCaption(hWnd, entry->translatedText);
                ::SendMessageW(hWnd, WM_UNICODE, 0, (LPARAM)section.GetString());
            }
            else
            {
                // Recorded with its own text as the translation, so the store learns it.
                char text[kWindowTextSize] = {};
                ::GetWindowTextA(hWnd, text, kWindowTextSize);
                CacheTranslation(text, CStringW(text), key, section);
            }
        }
        TranslateChildren(hWnd, section);
    }
}

void LocalizationManager::SendTranslationToWnd(HWND window, CString defaultText, CString key, CString section)
{
    if (HasTranslation(key, section))
        SendCaption(window, LookupTranslation(key, section));
    else
        CacheTranslation(defaultText, CStringW(), key, section);
}

void LocalizationManager::SendTranslationToWnd(HWND window, CString defaultText, int key, int section)
{
    CString keyText = KeyText(key);
    SendTranslationToWnd(window, defaultText, keyText, KeyText(section));
}
