// A user of the installed package: it must compile against the installed headers, link, start, and find there the
// version that the package claims.
#include <cstdio>

#include <quarn/quarn.h>

int main() {
    quarn::v6ProjectFile project;
    std::puts(QUARN_VERSION);
}
