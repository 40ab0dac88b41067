// A host that asks whether it runs in translation mode, which loads the setting reader by its
// file name, and whose exit code is the answer: 1 when the reader was found and the setting
// names a language, 0 when not.
#include <KivMFC.h>

int main()
{
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_HIDE);
    int mode = LocalizationManager::Get()->IsTranslationMode();
    LocalizationManager::Dispose();
    return mode;
}
