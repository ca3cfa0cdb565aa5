#include "assets/templateWriter.h"

#include <cstdio>
#include <string>

int main(int count, char** arguments) {
    if (count != 2 || !*arguments[1]) {
        std::fputs("usage: zdt_assets OUTDIR\n", stderr);
        return 2;
    }
    return zdt::assets::writeTemplates(std::string(arguments[1]) + "/") ? 0 : 1;
}
