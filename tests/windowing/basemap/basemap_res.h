#pragma once
#define IDD_LIBRARY_DIALOG 700
