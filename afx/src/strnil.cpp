// The one empty string of the runtime, shared by every module. Kept in a file of its own so
// no caller can see that it is not on the heap.
#include "afxstr.h"

namespace {

// Room for the terminator of either character type.
struct NilString
{
    CStringData data{2, 0, 0};
    wchar_t terminator[2]{0, 0};
};
NilString g_nil;

}  // namespace

CStringData* AFXAPI AfxGetNilStringData()
{
    return &g_nil.data;
}
