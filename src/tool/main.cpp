#include <cstring>
#include <iostream>

int main(int argc, char** argv) {
    if (argc < 2 || std::strcmp(argv[1], "--help") == 0) {
        std::cout << "usage: loomwright-tool COMMAND [ARGS]\n";
        return argc < 2 ? 2 : 0;
    }
    std::cout << "loomwright-tool: unknown command " << argv[1] << "\n";
    return 2;
}
