// The store behind the exported functions: the languages of one folder, each read on first use,
// changed in memory and written back by Flush.
#pragma once

#include "KivStore.h"
#include "PoCatalog.h"

#include <memory>
#include <unordered_set>
#include <string>
#include <string_view>
#include <vector>

class LanguageStore
{
public:
    // folder ends with a path separator.
    explicit LanguageStore(std::string folder);
    ~LanguageStore();
    LanguageStore(const LanguageStore&) = delete;
    LanguageStore& operator=(const LanguageStore&) = delete;

    // Attributes
    bool Knows(const char* id);

    // Operations; contexts and texts are UTF-8, ids are file names in the ANSI code page.
    CString LanguageId(const CStringW& setting);
    CStringW** Strings(const char* id);
    int Get(const char* id, const std::string& context, CStringW* text);
    int Insert(const char* id, const std::string& context, const std::string& msgid, const std::string& msgstr);
    int Update(const char* id, const std::string& context, const std::string& msgstr);
    // Writes every language that changed. A file that cannot be read or replaced is left alone
    // and the changes go to its side file, "<id>.po.pending", itself a PO file; when that one
    // cannot be read either, to the next free "<id>.po.N.pending".
    void Flush();

private:
    struct RecordTable;
    struct Language;

    // The table of a catalog's records (none for null); texts, when given, gets the section, key
    // and translation of each record.
    static std::unique_ptr<RecordTable> MakeTable(const kiv::rules::PoCatalog* catalog,
                                                  std::vector<const wchar_t*>* texts);
    Language* Find(const char* id);
    Language* Loaded(const char* id);
    void Load(Language& language);
    // Reads a language that let its catalog go again, before it is changed; false when the
    // language cannot be read.
    bool Whole(Language& language);
    // The translation that a let-go language's table holds for a context, or null.
    static const wchar_t* FindRecord(Language& language, std::string_view context);
    std::vector<std::string> NamesOf(Language& language);
    void FlushLanguage(Language& language);
    bool SetAside(Language& language);
    kiv::rules::PoHeaderInfo HeaderInfo(const Language& language) const;
    bool IsEcho(Language& language, const std::string& context, const std::string& msgid, const std::string& msgstr);

    std::string m_folder;
    std::vector<std::unique_ptr<Language>> m_languages;
};
