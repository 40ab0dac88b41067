// A store folder of a test's own under the build tree, named after the test, with a settings
// file naming it; and the store library loaded by name with its five functions.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include "KivStore.h"

#include <string>

class StoreTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    // The library, loaded and released as its callers do; releasing it writes the changes.
    void Load();
    void Unload();
    // The settings file's text; the test's folder is the store unless the text says otherwise.
    void WriteSettings(const std::string& text);

    std::string Folder() const { return m_folder; }
    std::string PathOf(const std::string& name) const { return m_folder + name; }
    void WriteFile(const std::string& name, const std::string& bytes);
    std::string ReadFile(const std::string& name) const;
    bool Exists(const std::string& name) const;
    void Remove(const std::string& name);

    CString Id(const char* setting) { return m_getId(setting); }
    CStringW** Strings(const char* id) { return m_getStrings(id); }
    int Get(const char* id, const char* section, const char* key, CStringW* text)
    {
        return m_get(id, section, key, text);
    }
    int Insert(const char* defaultText, const wchar_t* translation, const char* id, const char* section,
               const char* key)
    {
        return m_insert(defaultText, translation, id, section, key);
    }
    int Update(const wchar_t* translation, const char* id, const char* section, const char* key)
    {
        return m_update(translation, id, section, key);
    }
    // The translation the store holds, or "<not held>".
    CStringW Held(const char* id, const char* section, const char* key);

    HMODULE m_library = nullptr;

private:
    std::string m_folder;
    std::string m_settings;
    kiv::siblings::GetLanguageIDFn m_getId = nullptr;
    kiv::siblings::GetLanguageStringsFn m_getStrings = nullptr;
    kiv::siblings::GetLanguageStringFn m_get = nullptr;
    kiv::siblings::InsertLanguageStringFn m_insert = nullptr;
    kiv::siblings::UpdateLanguageStringFn m_update = nullptr;
};

// The folder of the running test program, with a trailing separator.
std::string ProgramFolder();
// The UTF-8 bytes of UTF-16 text, for comparing file contents.
std::string Utf8(const wchar_t* text);
