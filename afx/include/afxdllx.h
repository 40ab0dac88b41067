// Included once by an extension library that writes its own entry point.
#pragma once

#include "afxwin.h"
