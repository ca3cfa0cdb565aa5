#include "cli/application.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    try {
        return zdt::runZdt(argc, argv, std::cout, std::cerr);
    } catch (const std::exception& error) {
        std::cerr << "zdt: " << error.what() << '\n';
    } catch (...) {
        std::cerr << "zdt: an unknown failure\n";
    }
    return 1;
}
