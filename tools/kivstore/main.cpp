// kivstore: the store folder's command for translators and host developers.
#include "StoreTool.h"

#include <iostream>

int main(int argc, char** argv)
{
    std::vector<std::string> args(argv + 1, argv + argc);
    return kiv::tools::RunStoreTool(args, std::cout, std::cerr);
}
