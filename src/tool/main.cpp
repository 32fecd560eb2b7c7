#include "tool/Tool.h"

#include <QCoreApplication>

#include <iostream>
#include <unistd.h>

int main(int argc, char** argv) {
    const QCoreApplication core(argc, argv);
    Tool tool(std::cout, std::cerr, isatty(STDERR_FILENO) != 0);
    return tool.Run({argv + 1, argv + argc}); // the arguments' bytes, whatever their encoding
}
