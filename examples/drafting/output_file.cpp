#include "output_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "failure.h"

namespace draft {

namespace {

[[noreturn]] void fail(const std::string &path, const std::string &why) {
    throw Failure(path + ": cannot be written: " + why);
}

} // namespace

void writeFile(const std::string &path, const std::string &content) {
    namespace fs = std::filesystem;
    std::error_code error;
    if (fs::is_directory(path, error)) fail(path, "it is a directory");
    // A device or a pipe cannot be renamed onto.
    const bool isSpecial = fs::exists(path, error) && !fs::is_regular_file(path, error);
    const std::string partial = isSpecial ? path : path + ".part";
    {
        std::ofstream out(partial, std::ios::binary | std::ios::trunc);
        if (!out) fail(path, std::strerror(errno));
        out << content;
        out.close();
        if (!out) {
            const std::string why = std::strerror(errno);
            if (!isSpecial) fs::remove(partial, error);
            fail(path, why);
        }
    }
    if (isSpecial) return;
    fs::rename(partial, path, error);
    if (error) {
        const std::string why = error.message();
        fs::remove(partial, error);
        fail(path, why);
    }
}

} // namespace draft
