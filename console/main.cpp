#include "console/program.h"

#include <iostream>

int main(int count, char** arguments)
{
    return Tamrivo::RunProgram({arguments + 1, arguments + count}, std::cin, std::cout, std::cerr);
}
