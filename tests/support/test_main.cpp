// Test programs start the runtime as a console host does, then run their tests.
#include <afxwin.h>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOW);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
