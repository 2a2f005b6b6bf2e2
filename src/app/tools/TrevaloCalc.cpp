#include <iostream>

#include "app/tools/Comandos.h"

int main(int argc, char** argv) {
    return trevalo::calc::EjecutarCalc({argv + 1, argv + argc}, std::cout, std::cerr);
}
