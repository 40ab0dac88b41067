// Puts the store's translations on screen: the manager's own start-up keeps only one unit of
// each field of the store's records, so a host that wants the translators' texts calls this
// once at start, after AfxWinInit and before its first window.
#pragma once

#include <afxwin.h>

// Reads every record of the current language from the store in full and enters each into
// the manager's cache with SetTranslation, creating the manager if need be. At Dispose those
// entries equal the store's and cause no write. Answers the number of records entered: 0 when
// translation is off, the language is unknown or the store cannot be loaded.
extern "C" AFX_EXT_API int KivLoadStoreTranslations();
