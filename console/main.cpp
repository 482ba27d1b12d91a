#include "console/program.h"
#include "host/framework/environment.h"

#include <iostream>

int main(int count, char** arguments)
{
    Tamrivo::UseEnvironmentLocale();
    return Tamrivo::RunProgram({arguments + 1, arguments + count}, std::cin, std::cout, std::cerr);
}
