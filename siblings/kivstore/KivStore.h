// kivstore64.dll, the language-string store: one gettext PO file per language in the store
// folder (setting "Store"/"Directory", default "lang" beside the program). Callers load the
// library by name and look the five functions up under the decorated names of KivSiblings.h.
//
// Narrow arguments are NUL-terminated text in the ANSI code page, wide ones UTF-16. Changes are
// kept in memory and written when the library is unloaded (or the process ends); each file is
// replaced whole, through a new file, so it is always the old or the new one. A file the store
// cannot read, or cannot replace, is left as it is: the changes wait in "<file>.pending" beside
// it (or, when that cannot be read either, the next free "<file>.N.pending"), a PO file too, and
// join the file once it can be read and replaced again.
#pragma once

#include "KivSiblings.h"

// Results of the int functions: 0 is done, anything else says why not.
enum KivStoreResult
{
    kStoreOk = 0,
    kStoreNotHeld = 1,          // the language has no string for this section and key
    kStoreUnknownLanguage = 2,  // no PO file of that id in the store folder
    kStoreRefusedText = 3,      // a null section or key, a section with a line feed, U+0004, a lone surrogate
    kStoreAlreadyHeld = 4,      // insertion of a string the language already has; nothing changed
    kStoreSetAside = 5,         // the language's file cannot be read; the change went to its side file
    kStoreKeptTranslation = 6,  // an empty text does not replace a translation; nothing changed
    kStoreEchoNotWritten = 7,   // an insertion that only echoes the first units of a held record
};

// The id (PO file name without extension) of the language that the setting names: the id
// itself or a name in the file's header field "X-Language-Names", in any case. Empty when unknown.
CString GetLanguageID(const char* languageSetting);
// A null-terminated table of records of four strings (default text, translation, key, section);
// null for an unknown language. The store owns the table until the library is unloaded.
CStringW** GetLanguageStrings(const char* languageId);
// kStoreOk and the translation in *text when the language holds the section and key (an entry
// with an empty translation is held, with an empty text); non-zero otherwise.
int GetLanguageString(const char* languageId, const char* section, const char* key, CStringW* text);
// Adds an entry after the existing ones; a held section and key is left as it is.
int InsertLanguageString(const char* defaultText, const wchar_t* translatedText, const char* languageId,
                         const char* section, const char* key);
// Replaces the translation of a held entry in its place.
int UpdateLanguageString(const wchar_t* translatedText, const char* languageId, const char* section, const char* key);
