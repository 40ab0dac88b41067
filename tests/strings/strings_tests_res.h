#pragma once
// String table of the test host.
#define IDS_STR_HELLO 201
#define IDS_STR_UMLAUT 202
#define IDS_STR_EMPTY 203
#define IDS_STR_MISSING 209
// "_STRINGMAP" resources of the test host.
#define IDR_MAP_OPEN_CLOSE 301
#define IDR_MAP_CASE_DUPLICATES 302
#define IDR_MAP_SHARED_ID 303
#define IDR_MAP_END_MARK 304
#define IDR_MAP_END_MARK_LAST 305
#define IDR_MAP_UNTERMINATED 306
#define IDR_MAP_ODD_BYTE 307
#define IDR_MAP_SAVE 308
#define IDR_MAP_OPEN_AGAIN 309
#define IDR_MAP_EMPTY 310
#define IDR_MAP_MISSING 399
