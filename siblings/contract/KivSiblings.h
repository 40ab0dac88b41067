// The contract between the library and its sibling libraries: their file names, the exact
// decorated names under which callers look their functions up, the functions' types and the
// layout of a store record. The manager, the store, the setting reader and the tests' store
// double all take it from here; the libraries' export tables are generated from it.
#pragma once

#include <afx.h>

namespace kiv::siblings {

inline constexpr char kUtilLibrary[] = "kivutil64.dll";
inline constexpr char kStoreLibrary[] = "kivstore64.dll";

// The setting reader is requested in the 64-bit decoration, the store's functions in the
// short one; the libraries export exactly these strings.
// export: kivGetIniString
inline constexpr char kIniReaderExport[] =
    "?kivGetIniString@@YA?AV?$CStringT@DV?$StrTraitMFC_DLL@DV?$ChTraitsCRT@D@ATL@@@@@ATL@@QEBD00@Z";
// export: GetLanguageID
inline constexpr char kGetLanguageIDExport[] =
    "?GetLanguageID@@YA?AV?$CStringT@DV?$StrTraitMFC_DLL@DV?$ChTraitsCRT@D@ATL@@@@@ATL@@PBD@Z";
// export: GetLanguageStrings
inline constexpr char kGetLanguageStringsExport[] =
    "?GetLanguageStrings@@YAPAPAV?$CStringT@GV?$StrTraitMFC_DLL@GV?$ChTraitsCRT@G@ATL@@@@@ATL@@PBD@Z";
// export: GetLanguageString
inline constexpr char kGetLanguageStringExport[] =
    "?GetLanguageString@@YAHPBD00PAV?$CStringT@GV?$StrTraitMFC_DLL@GV?$ChTraitsCRT@G@ATL@@@@@ATL@@@Z";
// export: InsertLanguageString
inline constexpr char kInsertLanguageStringExport[] = "?InsertLanguageString@@YAHPBDPBG000@Z";
// export: UpdateLanguageString
inline constexpr char kUpdateLanguageStringExport[] = "?UpdateLanguageString@@YAHPBGPBD11@Z";

typedef CString (*IniReaderFn)(const char* section, const char* key, const char* defaultText);
typedef CString (*GetLanguageIDFn)(const char* languageSetting);
// A null-terminated table of records; the store owns the table and its records.
typedef CStringW** (*GetLanguageStringsFn)(const char* languageId);
// Non-zero when the store holds no string for the triple; zero when *text holds it.
typedef int (*GetLanguageStringFn)(const char* languageId, const char* section, const char* key, CStringW* text);
typedef int (*InsertLanguageStringFn)(const char* defaultText, const wchar_t* translatedText, const char* languageId,
                                      const char* section, const char* key);
typedef int (*UpdateLanguageStringFn)(const wchar_t* translatedText, const char* languageId, const char* section,
                                      const char* key);

// A record of GetLanguageStrings: four consecutive wide strings.
enum RecordField
{
    kRecordDefaultText = 0,
    kRecordTranslation = 1,
    kRecordKey = 2,
    kRecordSection = 3,
    kRecordFields = 4
};

}  // namespace kiv::siblings
