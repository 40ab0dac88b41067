// A language-string store for the tests, exported under the store's names: it answers from
// a control file and logs every call with its arguments, in order. The control file is
// named by the environment variable KIV_RECORDING_STORE, the log by KIV_RECORDING_STORE_LOG;
// both are UTF-8. The control file is read at the first call after each load.
//
// Control file: one instruction a line, fields separated by tabs; "\t", "\n" and "\\"
// escape a tab, a line feed and a backslash inside a field.
//   language <setting> <id>                        GetLanguageID(setting) answers id
//   record <default> <translation> <key> <section> one record of GetLanguageStrings
//   generate <count>                               that many generated records
//   table empty                                    a table whose first slot is null
//   string <id> <section> <key> <text>             GetLanguageString answers 0 and text
// GetLanguageID answers empty for a setting not listed; GetLanguageStrings answers null
// without records; GetLanguageString answers 1 for a triple not listed.
//
// Log: one line a call, the function's name and then its arguments, escaped the same way.
#include "KivSiblings.h"

#include <array>
#include <type_traits>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

std::wstring FromCodePage(UINT codePage, const char* text, int length)
{
    int n = ::MultiByteToWideChar(codePage, 0, text, length, nullptr, 0);
    std::wstring wide(n, L'\0');
    ::MultiByteToWideChar(codePage, 0, text, length, wide.data(), n);
    return wide;
}

std::wstring FromAnsi(const char* text)
{
    return text ? FromCodePage(CP_ACP, text, (int)strlen(text)) : L"(null)";
}

std::string ToUtf8(const std::wstring& wide)
{
    int n = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), (int)wide.size(), nullptr, 0, nullptr, nullptr);
    std::string text(n, '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), (int)wide.size(), text.data(), n, nullptr, nullptr);
    return text;
}

std::wstring Escape(const std::wstring& field)
{
    std::wstring out;
    for (wchar_t c : field)
        out += c == L'\t' ? L"\\t" : c == L'\n' ? L"\\n" : c == L'\\' ? L"\\\\" : std::wstring(1, c);
    return out;
}

std::wstring Unescape(const std::wstring& field)
{
    std::wstring out;
    for (size_t i = 0; i < field.size(); ++i)
    {
        if (field[i] != L'\\' || i + 1 == field.size())
        {
            out += field[i];
            continue;
        }
        wchar_t c = field[++i];
        out += c == L't' ? L'\t' : c == L'n' ? L'\n' : c;
    }
    return out;
}

std::wstring Variable(const wchar_t* name)
{
    wchar_t value[1024];
    DWORD n = ::GetEnvironmentVariableW(name, value, 1024);
    return n > 0 && n < 1024 ? std::wstring(value, n) : std::wstring();
}

std::wstring TripleKey(const std::wstring& id, const std::wstring& section, const std::wstring& key)
{
    return id + L'\x1f' + section + L'\x1f' + key;
}

// What the control file says, read once per load of the library.
struct Answers
{
    std::unordered_map<std::wstring, std::wstring> languages;  // setting -> id
    std::unordered_map<std::wstring, std::wstring> strings;    // id, section, key -> text
    std::vector<std::array<std::wstring, 4>> records;
    long generated = 0;
    bool emptyTable = false;

    void Apply(const std::vector<std::wstring>& f)
    {
        if (f.size() == 3 && f[0] == L"language")
            languages[f[1]] = f[2];
        else if (f.size() == 5 && f[0] == L"record")
            records.push_back({f[1], f[2], f[3], f[4]});
        else if (f.size() == 2 && f[0] == L"generate")
            generated = wcstol(f[1].c_str(), nullptr, 10);
        else if (f.size() == 2 && f[0] == L"table" && f[1] == L"empty")
            emptyTable = true;
        else if (f.size() == 5 && f[0] == L"string")
            strings[TripleKey(f[1], f[2], f[3])] = f[4];
    }
};

std::string ReadFile(const std::wstring& path)
{
    std::string bytes;
    HANDLE file = ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return bytes;
    char buffer[65536];
    DWORD n = 0;
    while (::ReadFile(file, buffer, sizeof(buffer), &n, nullptr) && n > 0)
        bytes.append(buffer, n);
    ::CloseHandle(file);
    return bytes;
}

Answers LoadAnswers()
{
    Answers answers;
    std::wstring path = Variable(L"KIV_RECORDING_STORE");
    if (path.empty())
        return answers;
    std::string bytes = ReadFile(path);
    std::wstring text = FromCodePage(CP_UTF8, bytes.data(), (int)bytes.size());
    size_t start = 0;
    while (start < text.size())
    {
        size_t end = text.find(L'\n', start);
        std::wstring line = text.substr(start, end == std::wstring::npos ? std::wstring::npos : end - start);
        start = end == std::wstring::npos ? text.size() : end + 1;
        if (!line.empty() && line.back() == L'\r')
            line.pop_back();
        std::vector<std::wstring> fields;
        for (size_t from = 0;;)
        {
            size_t tab = line.find(L'\t', from);
            fields.push_back(Unescape(line.substr(from, tab == std::wstring::npos ? std::wstring::npos : tab - from)));
            if (tab == std::wstring::npos)
                break;
            from = tab + 1;
        }
        answers.Apply(fields);
    }
    return answers;
}

Answers& State()
{
    static Answers answers = LoadAnswers();
    return answers;
}

// The calls, appended unbuffered so the tests read them in order even while loaded.
class CallLog
{
public:
    ~CallLog()
    {
        if (m_file != INVALID_HANDLE_VALUE)
            ::CloseHandle(m_file);
    }
    void Write(std::initializer_list<std::wstring> fields)
    {
        if (m_file == INVALID_HANDLE_VALUE && !m_opened)
        {
            m_opened = true;
            std::wstring path = Variable(L"KIV_RECORDING_STORE_LOG");
            if (!path.empty())
                m_file = ::CreateFileW(path.c_str(), FILE_APPEND_DATA,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                                       FILE_ATTRIBUTE_NORMAL, nullptr);
        }
        if (m_file == INVALID_HANDLE_VALUE)
            return;
        std::wstring line;
        for (const std::wstring& field : fields)
            line += (line.empty() ? L"" : L"\t") + Escape(field);
        std::string bytes = ToUtf8(line) + "\n";
        DWORD written = 0;
        ::WriteFile(m_file, bytes.data(), (DWORD)bytes.size(), &written, nullptr);
    }

private:
    HANDLE m_file = INVALID_HANDLE_VALUE;
    bool m_opened = false;
};

CallLog g_log;

// The table handed out by GetLanguageStrings: four consecutive strings a record.
std::vector<CStringW> g_fields;
std::vector<CStringW*> g_table;

void BuildTable(const Answers& answers)
{
    g_fields.clear();
    g_table.clear();
    size_t count = answers.records.size() + (size_t)answers.generated;
    g_fields.reserve(count * kiv::siblings::kRecordFields);
    for (const auto& record : answers.records)
        for (const std::wstring& field : record)
            g_fields.emplace_back(field.c_str());
    for (long i = 0; i < answers.generated; ++i)
    {
        g_fields.emplace_back((L"Text " + std::to_wstring(i)).c_str());
        g_fields.emplace_back((L"\x00DC"
                               L"bersetzung " +
                               std::to_wstring(i))
                                  .c_str());
        g_fields.emplace_back(std::to_wstring(i % 1000).c_str());
        g_fields.emplace_back(std::to_wstring(i / 1000).c_str());
    }
    for (size_t i = 0; i < count; ++i)
        g_table.push_back(&g_fields[i * kiv::siblings::kRecordFields]);
    g_table.push_back(nullptr);
}

}  // namespace

extern "C" CString RecordingGetLanguageID(const char* languageSetting)
{
    g_log.Write({L"GetLanguageID", FromAnsi(languageSetting)});
    auto found = State().languages.find(FromAnsi(languageSetting));
    return found == State().languages.end() ? CString() : CString(found->second.c_str());
}

extern "C" CStringW** RecordingGetLanguageStrings(const char* languageId)
{
    g_log.Write({L"GetLanguageStrings", FromAnsi(languageId)});
    const Answers& answers = State();
    if (answers.emptyTable)
    {
        g_table.assign(1, nullptr);
        return g_table.data();
    }
    if (answers.records.empty() && answers.generated == 0)
        return nullptr;
    if (g_table.empty())
        BuildTable(answers);
    return g_table.data();
}

extern "C" int RecordingGetLanguageString(const char* languageId, const char* section, const char* key, CStringW* text)
{
    g_log.Write({L"GetLanguageString", FromAnsi(languageId), FromAnsi(section), FromAnsi(key),
                 text ? std::wstring(text->GetString()) : L"(null)"});
    auto found = State().strings.find(TripleKey(FromAnsi(languageId), FromAnsi(section), FromAnsi(key)));
    if (found == State().strings.end())
        return 1;
    *text = found->second.c_str();
    return 0;
}

extern "C" int RecordingInsertLanguageString(const char* defaultText, const wchar_t* translatedText,
                                             const char* languageId, const char* section, const char* key)
{
    g_log.Write({L"InsertLanguageString", FromAnsi(defaultText), translatedText ? translatedText : L"(null)",
                 FromAnsi(languageId), FromAnsi(section), FromAnsi(key)});
    return 0;
}

extern "C" int RecordingUpdateLanguageString(const wchar_t* translatedText, const char* languageId, const char* section,
                                             const char* key)
{
    g_log.Write({L"UpdateLanguageString", translatedText ? translatedText : L"(null)", FromAnsi(languageId),
                 FromAnsi(section), FromAnsi(key)});
    return 0;
}

// The double answers through the same types as the store it stands in for.
static_assert(std::is_same_v<decltype(&RecordingGetLanguageID), kiv::siblings::GetLanguageIDFn>);
static_assert(std::is_same_v<decltype(&RecordingGetLanguageStrings), kiv::siblings::GetLanguageStringsFn>);
static_assert(std::is_same_v<decltype(&RecordingGetLanguageString), kiv::siblings::GetLanguageStringFn>);
static_assert(std::is_same_v<decltype(&RecordingInsertLanguageString), kiv::siblings::InsertLanguageStringFn>);
static_assert(std::is_same_v<decltype(&RecordingUpdateLanguageString), kiv::siblings::UpdateLanguageStringFn>);
