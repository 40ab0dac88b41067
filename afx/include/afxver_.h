// Build configuration shared by every afx header.
#pragma once

#ifndef _MBCS
#define _MBCS
#endif

#include <windows.h>
#include <oleauto.h>
#include <tchar.h>

#ifdef KIVAFX_BUILD
#define AFX_API __declspec(dllexport)
#else
#define AFX_API __declspec(dllimport)
#endif

// Extension libraries export their classes with AFX_EXT_CLASS; the library sets
// _AFXEXT while it builds itself.
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#define AFX_EXT_API __declspec(dllexport)
#define AFX_EXT_DATA __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#define AFX_EXT_API __declspec(dllimport)
#define AFX_EXT_DATA __declspec(dllimport)
#endif

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFX_STATIC static
#define AFX_INLINE inline

#ifndef ASSERT
#define ASSERT(f) ((void)0)
#endif
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(p) ((void)0)
#define TRACE(...) ((void)0)
#define UNUSED_ALWAYS(x) (void)(x)

#ifndef AFX_INLINE_NOEXCEPT
#define AFX_INLINE_NOEXCEPT noexcept
#endif

struct __POSITION
{};
typedef __POSITION* POSITION;
#define BEFORE_START_POSITION ((POSITION)-1L)
