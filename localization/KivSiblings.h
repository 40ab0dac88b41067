// The sibling libraries of the product family, as the manager binds them at run time:
// file names, the exact decorated export names it requests and the signatures it calls.
#pragma once

#include <afx.h>

namespace kiv::siblings
{

inline constexpr char kUtilLibrary[] = "kivutil64.dll";
inline constexpr char kStoreLibrary[] = "kivstore64.dll";

// The setting reader is requested in the 64-bit decoration, the store's functions in the
// short one; the libraries export exactly these strings.
inline constexpr char kIniReaderExport[] =
    "?kivGetIniString@@YA?AV?$CStringT@DV?$StrTraitMFC_DLL@DV?$ChTraitsCRT@D@ATL@@@@@ATL@@QEBD00@Z";
inline constexpr char kGetLanguageIDExport[] =
    "?GetLanguageID@@YA?AV?$CStringT@DV?$StrTraitMFC_DLL@DV?$ChTraitsCRT@D@ATL@@@@@ATL@@PBD@Z";
inline constexpr char kGetLanguageStringsExport[] =
    "?GetLanguageStrings@@YAPAPAV?$CStringT@GV?$StrTraitMFC_DLL@GV?$ChTraitsCRT@G@ATL@@@@@ATL@@PBD@Z";
inline constexpr char kGetLanguageStringExport[] =
    "?GetLanguageString@@YAHPBD00PAV?$CStringT@GV?$StrTraitMFC_DLL@GV?$ChTraitsCRT@G@ATL@@@@@ATL@@@Z";
inline constexpr char kInsertLanguageStringExport[] = "?InsertLanguageString@@YAHPBDPBG000@Z";
inline constexpr char kUpdateLanguageStringExport[] = "?UpdateLanguageString@@YAHPBGPBD11@Z";

typedef CString (*IniReaderFn)(const char* section, const char* key, const char* defaultText);
typedef CString (*GetLanguageIDFn)(const char* languageSetting);
// A null-terminated table of records of four wide strings: default, translation, key,
// section. The store owns the table and its records.
typedef CStringW** (*GetLanguageStringsFn)(const char* languageId);
// Non-zero when the store holds no string for the triple; zero when *text holds it.
typedef int (*GetLanguageStringFn)(const char* languageId, const char* section, const char* key, CStringW* text);
typedef int (*InsertLanguageStringFn)(const char* defaultText, const wchar_t* translatedText, const char* languageId,
                                      const char* section, const char* key);
typedef int (*UpdateLanguageStringFn)(const wchar_t* translatedText, const char* languageId, const char* section,
                                      const char* key);

} // namespace kiv::siblings
