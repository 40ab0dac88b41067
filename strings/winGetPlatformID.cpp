#include "winGetPlatformID.h"

static_assert(sizeof(OSVERSIONINFOA) == 148, "the version record the platform expects");

// A null platformId is refused with ERROR_INVALID_PARAMETER rather than written through.
extern "C" unsigned int winGetPlatformID(unsigned int* platformId)
{
    if (platformId == nullptr)
        return ERROR_INVALID_PARAMETER;
    OSVERSIONINFOA info{};
    info.dwOSVersionInfoSize = sizeof(info);
    if (!::GetVersionExA(&info))
        return ::GetLastError();
    *platformId = info.dwPlatformId;
    return 0;
}
