// The entry point of a GUI host: linked into the host's executable, it hands over to the
// runtime, which runs the host's application object.
#include <afxwin.h>

extern "C" int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow)
{
    return AfxWinMain(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
}
