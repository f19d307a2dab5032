// Runs the drafting program and looks at what it leaves.
#pragma once

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/wait.h>

namespace program {

namespace fs = std::filesystem;

struct Outcome {
    int exitCode;
    std::string out, err;

    nlohmann::json json() const { return nlohmann::json::parse(out); }
};

inline std::string contentOf(const fs::path &path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

inline std::string sample(const std::string &name) {
    return std::string(SAMPLE_DRAWINGS) + "/" + name;
}

/// A directory of its own for each test, empty at first.
class Scratch {
  public:
    explicit Scratch(const std::string &name) : path_(fs::path(SCRATCH_DIRECTORY) / name) {
        fs::remove_all(path_);
        fs::create_directories(path_);
    }

    std::string file(const std::string &name) const { return (path_ / name).string(); }
    std::string write(const std::string &name, const std::string &content) const {
        std::ofstream(path_ / name, std::ios::binary) << content;
        return file(name);
    }
    std::size_t count() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(path_), fs::directory_iterator()));
    }

    /// Runs draft with arguments as a shell would; -1 when a signal ended it.
    Outcome draft(const std::string &arguments) const {
        const std::string streams = path_.string() + ".streams";
        fs::create_directories(streams);
        const std::string command = std::string("'") + DRAFT_PROGRAM + "' " + arguments + " >'" +
                                    streams + "/out' 2>'" + streams + "/err'";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(streams + "/out"),
                contentOf(streams + "/err")};
    }
    /// What it tells as JSON; it has to succeed.
    nlohmann::json told(const std::string &arguments) const {
        const Outcome outcome = draft(arguments + " --json");
        EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
        return outcome.json();
    }

  private:
    fs::path path_;
};

inline bool isAt(const nlohmann::json &point, double x, double y, double within = 1e-12) {
    return std::hypot(point["x"].get<double>() - x, point["y"].get<double>() - y) < within;
}

/// A drawing from the groups of its entities, "code value" lines separated by '|'.
inline std::string dxf(const std::string &entities, const std::string &blocks = "") {
    const auto groups = [](const std::string &text) {
        std::istringstream in(text);
        std::string lines;
        for (std::string group; std::getline(in, group, '|');) {
            const std::size_t blank = group.find(' ');
            lines += group.substr(0, blank) + "\n" + group.substr(blank + 1) + "\n";
        }
        return lines;
    };
    std::string text;
    if (!blocks.empty()) text += groups("0 SECTION|2 BLOCKS|" + blocks + "|0 ENDSEC");
    return text + groups("0 SECTION|2 ENTITIES|" + entities + "|0 ENDSEC|0 EOF");
}

} // namespace program
