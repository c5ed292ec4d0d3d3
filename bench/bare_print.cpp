// What a process that prints the form costs at the least: it reads what to draw where, draws it, and writes
// it.
#include "bare_pages.h"

#include <fstream>
#include <iostream>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "bare_print LIST PDF\n";
        return 2;
    }
    std::ifstream list(arguments[1]);
    std::ofstream pdf(arguments[2], std::ios::binary);
    pdf << lodge::bench::drawBare(lodge::bench::readPages(list));
    return pdf.good() ? 0 : 1;
}
