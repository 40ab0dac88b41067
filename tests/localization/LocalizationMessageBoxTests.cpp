// Message boxes: the text, caption and style that reach the real box, in and out of
// translation mode. A box shown through the narrow call loses the characters that the ANSI
// code page lacks; one shown through the wide call keeps them.
#include "LocalizationTestSupport.h"

namespace localization_tests {

namespace {

const wchar_t kWideCaption[] = L"Fehler \x65E5\x672C";  // two characters no ANSI code page here has
const wchar_t kNarrowedCaption[] = L"Fehler ??";

}  // namespace

TEST_F(LocalizationManager, StringKeyOverloadsWithoutAWideCaptionShowNothingOutsideTranslationMode)
{
    UseRecordingStore();
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox("Disk full", "7", 0u);
    m->ShowMessageBox("Disk full", "7", CString("Fehler"), 0u);
    EXPECT_EQ(0u, watcher.boxes.size());
    EXPECT_EQ(0, CachedSectionCount(m));
}

TEST_F(LocalizationManager, NumericKeyWithoutACaptionShowsNothingOutsideTranslationMode)
{
    UseRecordingStore();
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox("Disk full", 7, 0u);
    EXPECT_EQ(0u, watcher.boxes.size());
    EXPECT_EQ(0, CachedSectionCount(m));
}

TEST_F(LocalizationManager, NumericKeyWithAWideCaptionShowsTheBoxOutsideTranslationMode)
{
    UseRecordingStore();
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox("Disk full", 7, CStringW(kWideCaption), 0u);
    ASSERT_EQ(1u, watcher.boxes.size());
    const SeenBox& box = watcher.boxes[0];
    EXPECT_EQ(L"Disk full", box.text);
    EXPECT_EQ(kWideCaption, box.caption);
    EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
    EXPECT_FALSE(box.hasIcon);
    EXPECT_FALSE(box.owned);
    EXPECT_EQ(0, CachedSectionCount(m));
}

TEST_F(LocalizationManager, StringKeyWithAWideCaptionShowsTheBoxOutsideTranslationMode)
{
    UseRecordingStore();
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox("Disk full", "7", CStringW(kWideCaption), MB_YESNO | MB_ICONWARNING);
    ASSERT_EQ(1u, watcher.boxes.size());
    const SeenBox& box = watcher.boxes[0];
    EXPECT_EQ(L"Disk full", box.text);
    EXPECT_EQ(kWideCaption, box.caption);
    EXPECT_EQ((std::vector<int>{IDYES, IDNO}), box.buttons);
    EXPECT_TRUE(box.hasIcon);
    EXPECT_FALSE(box.owned);
}

TEST_F(LocalizationManager, NumericKeyWithANarrowCaptionShowsTheBoxOutsideTranslationMode)
{
    UseRecordingStore();
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox("Disk full", 7, CString("Fehler"), MB_OKCANCEL);
    ASSERT_EQ(1u, watcher.boxes.size());
    EXPECT_EQ(L"Disk full", watcher.boxes[0].text);
    EXPECT_EQ(L"Fehler", watcher.boxes[0].caption);
    EXPECT_EQ((std::vector<int>{IDOK, IDCANCEL}), watcher.boxes[0].buttons);
}

TEST_F(LocalizationManager, UntranslatedTextInTranslationModeIsShownThroughTheNarrowCallAndRecorded)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    {
        BoxWatcher watcher;
        m->ShowMessageBox("Disk full", "7", CStringW(kWideCaption), MB_OK);
        ASSERT_EQ(1u, watcher.boxes.size());
        EXPECT_EQ(L"Disk full", watcher.boxes[0].text);
        EXPECT_EQ(kNarrowedCaption, watcher.boxes[0].caption);
        EXPECT_FALSE(watcher.boxes[0].owned);
    }
    const TranslationEntry* entry = CachedEntry(m, "STRINGTABLE", "7");
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ("Disk full", entry->defaultText);
    EXPECT_STREQ(L"", entry->translatedText);
    EXPECT_EQ(1, CachedEntryCount(m));
    Manager::Dispose();
    std::vector<std::string> log = StoreLog();
    ASSERT_EQ(5u, log.size());
    EXPECT_EQ(LogLine({"InsertLanguageString", "Disk full", "", "de", "STRINGTABLE", "7"}), log[4]);
}

TEST_F(LocalizationManager, CachedTranslationIsShownInUtf16WhateverTheText)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("Disk full", L"Datentr\x00E4ger voll", "7", "STRINGTABLE");
    BoxWatcher watcher;
    m->ShowMessageBox("Something else", "7", CStringW(kWideCaption), MB_OK);
    ASSERT_EQ(1u, watcher.boxes.size());
    EXPECT_EQ(L"Datentr\x00E4ger voll", watcher.boxes[0].text);
    EXPECT_EQ(kWideCaption, watcher.boxes[0].caption);
    EXPECT_STREQ("Disk full", CachedEntry(m, "STRINGTABLE", "7")->defaultText);
}

TEST_F(LocalizationManager, CachedTranslationKeepsCharactersOutsideTheAnsiCodePage)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    const wchar_t full[] = L"\x30C7\x30A3\x30B9\x30AF\x304C\x3044\x3063\x3071\x3044";
    m->SetTranslation("Disk full", full, "7", "STRINGTABLE");
    BoxWatcher watcher;
    m->ShowMessageBox("Disk full", 7, CString("Fehler"), MB_OK);
    ASSERT_EQ(1u, watcher.boxes.size());
    EXPECT_EQ(full, watcher.boxes[0].text);
    EXPECT_EQ(L"Fehler", watcher.boxes[0].caption);
}

TEST_F(LocalizationManager, StringKeyOverloadsShowTheBoxInTranslationMode)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox("Disk full", "7", MB_OKCANCEL);
    m->ShowMessageBox("Disk full", "8", CString("Fehler"), MB_OK);
    ASSERT_EQ(2u, watcher.boxes.size());
    EXPECT_EQ(L"Disk full", watcher.boxes[0].text);
    EXPECT_EQ(L"", watcher.boxes[0].caption);
    EXPECT_EQ((std::vector<int>{IDOK, IDCANCEL}), watcher.boxes[0].buttons);
    EXPECT_EQ(L"Fehler", watcher.boxes[1].caption);
    EXPECT_NE(nullptr, CachedEntry(m, "STRINGTABLE", "7"));
    EXPECT_NE(nullptr, CachedEntry(m, "STRINGTABLE", "8"));
}

TEST_F(LocalizationManager, NumericKeyWithoutACaptionShowsTheBoxInTranslationMode)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox("Disk full", 7, MB_YESNO);
    ASSERT_EQ(1u, watcher.boxes.size());
    EXPECT_EQ(L"Disk full", watcher.boxes[0].text);
    EXPECT_EQ(L"", watcher.boxes[0].caption);
    EXPECT_EQ((std::vector<int>{IDYES, IDNO}), watcher.boxes[0].buttons);
    ASSERT_NE(nullptr, CachedEntry(m, "STRINGTABLE", "7"));
    EXPECT_STREQ("Disk full", CachedEntry(m, "STRINGTABLE", "7")->defaultText);
}

TEST_F(LocalizationManager, StringResourceIsShownUnderItsNumberWithNoCaptionAndStyleZero)
{
    UseRecordingStore();
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox(1201);
    ASSERT_EQ(1u, watcher.boxes.size());
    EXPECT_EQ(L"Disk full", watcher.boxes[0].text);
    EXPECT_EQ(L"", watcher.boxes[0].caption);
    EXPECT_EQ(std::vector<int>{IDOK}, watcher.boxes[0].buttons);
    EXPECT_FALSE(watcher.boxes[0].hasIcon);
    EXPECT_FALSE(watcher.boxes[0].owned);
}

TEST_F(LocalizationManager, StringResourceInTranslationModeIsRecordedUnderItsNumber)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox(1201);
    ASSERT_EQ(1u, watcher.boxes.size());
    EXPECT_EQ(L"Disk full", watcher.boxes[0].text);
    const TranslationEntry* entry = CachedEntry(m, "STRINGTABLE", "1201");
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ("Disk full", entry->defaultText);
    EXPECT_STREQ(L"", entry->translatedText);
}

TEST_F(LocalizationManager, StringResourceInTranslationModeShowsTheCachedTranslation)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("Disk full", L"Datentr\x00E4ger voll", "1201", "STRINGTABLE");
    BoxWatcher watcher;
    m->ShowMessageBox(1201, MB_RETRYCANCEL | MB_ICONERROR);
    ASSERT_EQ(1u, watcher.boxes.size());
    EXPECT_EQ(L"Datentr\x00E4ger voll", watcher.boxes[0].text);
    EXPECT_EQ(L"", watcher.boxes[0].caption);
    EXPECT_EQ((std::vector<int>{IDRETRY, IDCANCEL}), watcher.boxes[0].buttons);
    EXPECT_TRUE(watcher.boxes[0].hasIcon);
}

TEST_F(LocalizationManager, MissingStringResourceShowsAnEmptyText)
{
    UseRecordingStore();
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox(4242, MB_OK);
    ASSERT_EQ(1u, watcher.boxes.size());
    EXPECT_EQ(L"", watcher.boxes[0].text);
    EXPECT_EQ(L"", watcher.boxes[0].caption);
}

TEST_F(LocalizationManager, TranslationModeIsAskedAtEveryBox)
{
    UseRecordingStore();
    Manager* m = Manager::Get();
    BoxWatcher watcher;
    m->ShowMessageBox("Disk full", "7", CStringW(kWideCaption), MB_OK);
    WriteSetting("German");
    m->ShowMessageBox("Disk full", "7", CStringW(kWideCaption), MB_OK);
    ASSERT_EQ(2u, watcher.boxes.size());
    EXPECT_EQ(kWideCaption, watcher.boxes[0].caption);
    EXPECT_EQ(kNarrowedCaption, watcher.boxes[1].caption);
}

}  // namespace localization_tests
