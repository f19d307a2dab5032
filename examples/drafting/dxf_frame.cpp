#include "dxf_frame.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>

#include <unistd.h>

#include "failure.h"

namespace draft {

namespace {

constexpr int kByLayer = -1; ///< line weight
constexpr int kByLayerColor = 256;
constexpr int kBlack = 7;

void writeLinetypes(DL_Dxf &dxf, DL_WriterA &out) {
    constexpr int kCount = 3;
    out.tableLinetypes(kCount);
    dxf.writeLinetype(out, DL_LinetypeData("BYBLOCK", "BYBLOCK", 0, 0, 0.0));
    dxf.writeLinetype(out, DL_LinetypeData("BYLAYER", "BYLAYER", 0, 0, 0.0));
    dxf.writeLinetype(out, DL_LinetypeData("CONTINUOUS", "Continuous", 0, 0, 0.0));
    out.tableEnd();
}

void writeLayers(DL_Dxf &dxf, DL_WriterA &out, const std::vector<FrameLayer> &layers) {
    out.tableLayers(static_cast<int>(layers.size()) + 1);
    dxf.writeLayer(out, DL_LayerData("0", 0),
                   DL_Attributes("", kBlack, kByLayer, "CONTINUOUS", 1.0));
    for (const FrameLayer &layer : layers) {
        if (layer.name == "0") continue;
        dxf.writeLayer(out, DL_LayerData(layer.name, 0),
                       DL_Attributes("", layer.color, kByLayer, "CONTINUOUS", 1.0));
    }
    out.tableEnd();
}

void writeTables(DL_Dxf &dxf, DL_WriterA &out, const std::vector<FrameLayer> &layers,
                 const std::vector<FrameBlock> &blocks) {
    out.sectionTables();
    dxf.writeVPort(out);
    writeLinetypes(dxf, out);
    writeLayers(dxf, out, layers);
    out.tableStyle(1);
    dxf.writeStyle(out, DL_StyleData("Standard", 0, 2.5, 1.0, 0.0, 0, 2.5, "txt", ""));
    out.tableEnd();
    dxf.writeView(out);
    dxf.writeUcs(out);
    out.tableAppid(1);
    dxf.writeAppid(out, "ACAD");
    out.tableEnd();
    dxf.writeDimStyle(out, 2.5, 1.25, 0.625, 0.625, 2.5);
    dxf.writeBlockRecord(out);
    for (const FrameBlock &block : blocks)
        dxf.writeBlockRecord(out, block.name);
    out.tableEnd();
    out.sectionEnd();
}

void writeBlocks(DL_Dxf &dxf, DL_WriterA &out, const std::vector<FrameBlock> &blocks) {
    out.sectionBlocks();
    for (const char *space : {"*Model_Space", "*Paper_Space", "*Paper_Space0"}) {
        dxf.writeBlock(out, DL_BlockData(space, 0, 0.0, 0.0, 0.0));
        dxf.writeEndBlock(out, space);
    }
    for (const FrameBlock &block : blocks) {
        dxf.writeBlock(out, DL_BlockData(block.name, 0, 0.0, 0.0, 0.0));
        block.writeContents(dxf, out);
        dxf.writeEndBlock(out, block.name);
    }
    out.sectionEnd();
}

/// A file of its own for dxflib, which writes to nothing else.
class TemporaryFile {
  public:
    TemporaryFile() {
        std::string name = (std::filesystem::temp_directory_path() / "draft-XXXXXX").string();
        const int descriptor = mkstemp(name.data());
        if (descriptor < 0) throw Failure(name + ": cannot be written: " + std::strerror(errno));
        close(descriptor);
        path_ = name;
    }
    ~TemporaryFile() { std::remove(path_.c_str()); }
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    const std::string &path() const { return path_; }

  private:
    std::string path_;
};

std::string contentOf(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

} // namespace

std::string framedText(const std::vector<FrameLayer> &layers, const std::vector<FrameBlock> &blocks,
                       const std::function<void(DL_Dxf &, DL_WriterA &)> &writeEntities) {
    const TemporaryFile file;
    DL_Dxf dxf;
    const std::unique_ptr<DL_WriterA> out(dxf.out(file.path().c_str(), DL_Codes::AC1015));
    if (!out) throw Failure(file.path() + ": cannot be written");
    dxf.writeHeader(*out);
    out->sectionEnd();
    writeTables(dxf, *out, layers, blocks);
    writeBlocks(dxf, *out, blocks);
    out->sectionEntities();
    writeEntities(dxf, *out);
    out->sectionEnd();
    dxf.writeObjects(*out);
    dxf.writeObjectsEnd(*out);
    out->dxfEOF();
    out->close();
    // dxflib does not tell of a full disk, but then the end is missing.
    constexpr std::string_view kEnd = "EOF\n";
    std::string text = contentOf(file.path());
    if (text.size() < kEnd.size() || text.substr(text.size() - kEnd.size()) != kEnd)
        throw Failure(file.path() + ": cannot be written: no space left");
    return text;
}

DL_Attributes onLayer(const std::string &layer) {
    return {layer, kByLayerColor, kByLayer, "BYLAYER", 1.0};
}

} // namespace draft
