#include <cstdio>

int main(int argc, char** argv) {
    (void)argc;
    (void)argv;
    std::puts("iconwright-cli");
    return 0;
}
