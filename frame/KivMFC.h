// Every public class of the library, with the runtime headers they need.
#pragma once

#include <afxwin.h>
#include <afxcoll.h>

#include "KivMFCEntry.h"
#include "KivMFCResource.h"
#include "LocalizationManager.h"
#include "KivLoadStoreTranslations.h"
#include "ColorButton.h"
#include "UnicodeButton.h"
#include "UnicodeMenu.h"
#include "UnicodeTabCtrl.h"
#include "MfcColoredTabCtrl.h"
#include "mfcCDialog.h"
#include "mfcDialog.h"
#include "mfcCPropertyPage.h"
#include "mfcCDialogBar.h"
#include "mfcCListCtrl.h"
#include "strString.h"
#include "strStringW.h"
#include "strFilename.h"
#include "strFilenameW.h"
#include "mfcCStringMap.h"
#include "mfcCLineTracker.h"
#include "mfcCLineTrackers.h"
#include "winGetPlatformID.h"
