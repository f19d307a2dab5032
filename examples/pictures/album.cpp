#include "album.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace pictures {

namespace {

std::vector<std::string> namesOf(const std::string &exportList) {
    std::vector<std::string> names;
    std::ifstream in(exportList);
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.front() != '#') names.push_back(line);
    }
    return names;
}

bool settingsAreUntouched() {
    const double *table = ca_Simpson_getParmtbl();
    return ca_geterrdist() == 1e-6 && ca_GetStartendFlg() == 0 && table[0] == 0.0 &&
           table[1] == 0.0;
}

} // namespace

void Album::store(const std::string &name, const Picture &picture, int calls) {
    if (calls == 0) faults_.push_back(name + ": its picture does not call it");
    if (!settingsAreUntouched()) faults_.push_back(name + ": its picture leaves settings changed");
    if (!pictures_.emplace(name, picture.svg(name)).second)
        faults_.push_back(name + ": two pictures");
}

bool Album::write(const std::string &folder, const std::string &exportList) const {
    std::vector<std::string> faults = faults_;
    std::map<std::string, std::string> unnamed = pictures_;
    const std::vector<std::string> names = namesOf(exportList);
    if (names.empty()) faults.push_back(exportList + ": no names");
    for (const std::string &name : names) {
        if (unnamed.erase(name) == 0) faults.push_back(name + ": no picture");
    }
    for (const auto &[name, svg] : unnamed) {
        faults.push_back(name + ": a picture, but not exported");
    }

    std::filesystem::create_directories(folder);
    for (const auto &[name, svg] : pictures_) {
        const auto file = std::filesystem::path(folder) / (name + ".svg");
        std::ofstream out(file, std::ios::binary);
        out << svg;
        if (!out.flush()) faults.push_back(name + ": cannot be written");
    }
    for (const std::string &fault : faults) {
        std::cerr << fault << '\n';
    }
    return faults.empty();
}

} // namespace pictures
