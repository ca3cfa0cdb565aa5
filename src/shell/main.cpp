#include "shell/application.h"

int main(int argc, char* argv[]) {
    return zdt::runDesigner(argc, argv);
}
