// Identifiers of the library's own resources.
#pragma once

#define IDB_KIV_COMBO_ARROW 2012
#define IDB_KIV_COMBO_ARROW_DISABLED 2013

#define IDC_KIV_HLINE_HOVER 2000
#define IDC_KIV_HLINE_DRAG 2001
#define IDC_KIV_VLINE_HOVER 2002
#define IDC_KIV_VLINE_DRAG 2003

// The library's name as a string resource, so hosts can see its strings in the chain.
#define IDS_KIV_LIBRARY_NAME 2100
