// A host in C++: tells whether the library answers and is the version expected.
#include <planegeo.h>

#include <iostream>
#include <string>

int main(int argc, char **argv) {
    const std::string version = std::to_string(PLANEGEO_VERSION_MAJOR) + "." +
                                std::to_string(PLANEGEO_VERSION_MINOR) + "." +
                                std::to_string(PLANEGEO_VERSION_PATCH);
    if (argc != 2 || version != argv[1]) {
        std::cerr << "the header tells version " << version << "\n";
        return 1;
    }
    const DTPOINT from{1.0, 1.0}, to{4.0, 5.0};
    return ca_dstpt(&from, &to) == 5.0 ? 0 : 1;
}
