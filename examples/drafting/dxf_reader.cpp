#include "dxf_reader.h"

#include <cmath>
#include <istream>
#include <unordered_map>
#include <utility>

#include <dl_creationadapter.h>
#include <dl_dxf.h>

#include "blocks.h"
#include "dxf_records.h"
#include "failure.h"
#include "polyline.h"
#include "record_feed.h"

namespace draft {

namespace {

constexpr double kDegPerRad = 57.29577951308232;
constexpr double kFullTurnDeg = 360.0;
/// Files write a whole turn of an ellipse as 2 pi with as few as five decimals.
constexpr double kFullEllipseSlackDeg = 1e-3;
constexpr const char *kNearlyFlat = "polyline arc of almost no height, now a line";
constexpr int kPolylineClosed = 1;
constexpr int kPolylineInSpace = 8;

/// Collects what dxflib hands over, block by block.
class Collector : public DL_CreationAdapter {
  public:
    Collector(TallyByBlock &leftOut, Drawing &drawing) : leftOut_(leftOut), drawing_(drawing) {
        layerOf("0");
    }

    Blocks &&blocks() {
        finishPolyline();
        return std::move(blocks_);
    }

    void addBlock(const DL_BlockData &data) override {
        finishPolyline();
        block_ = blockKey(data.name);
        blocks_[block_].base = {data.bpx, data.bpy};
    }
    void endBlock() override {
        finishPolyline();
        block_.clear();
    }

    void addLayer(const DL_LayerData &data) override {
        drawing_.layers[layerOf(data.name)].color = std::abs(attributes.getColor());
    }

    void addLine(const DL_LineData &data) override {
        finishPolyline();
        const DTPOINT from = {data.x1, data.y1};
        const DTPOINT to = {data.x2, data.y2};
        noteHeight("LINE", data.z1 != 0.0 || data.z2 != 0.0);
        if (ca_dstpt(&from, &to) < ca_geterrdist()) return leaveOut("LINE of no length");
        add(DTLINE{0, from.x, from.y, to.x, to.y}, Affine{});
    }

    void addCircle(const DL_CircleData &data) override {
        finishPolyline();
        noteHeight("CIRCLE", data.cz != 0.0);
        if (data.radius < ca_geterrdist()) return leaveOut("CIRCLE of no size");
        add(DTARC{0, data.cx, data.cy, data.radius, 0.0, kFullTurnDeg}, ownPlane());
    }

    void addArc(const DL_ArcData &data) override {
        finishPolyline();
        noteHeight("ARC", data.cz != 0.0);
        if (data.radius < ca_geterrdist()) return leaveOut("ARC of no size");
        DTARC arc = {0, data.cx, data.cy, data.radius, data.angle1, data.angle2};
        if (a2d_StdSedeg(&arc.start, &arc.end) == 1) {
            arc.start = 0.0;
            arc.end = kFullTurnDeg;
        }
        add(arc, ownPlane());
    }

    void addEllipse(const DL_EllipseData &data) override {
        finishPolyline();
        noteHeight("ELLIPSE", data.cz != 0.0);
        const DTPOINT center = {data.cx, data.cy};
        const DTPOINT vertex = {data.cx + data.mx, data.cy + data.my};
        const double first = 2.0 * ca_dstpt(&center, &vertex);
        const double second = first * std::fabs(data.ratio);
        const double least = 2.0 * ca_geterrdist();
        if (first < least || second < least) return leaveOut("ELLIPSE of no size");
        DTELLIPSE ellipse = {0,
                             center.x,
                             center.y,
                             first,
                             second,
                             data.angle1 * kDegPerRad,
                             data.angle2 * kDegPerRad,
                             atan2d(data.my, data.mx)};
        // Seen from behind, its parameter runs the other way.
        if (isSeenFromBehind()) ellipse.start = -std::exchange(ellipse.end, -ellipse.start);
        normaliseTurn(ellipse);
        add(ellipse, Affine{});
    }

    void addPolyline(const DL_PolylineData &data) override {
        finishPolyline();
        inPolyline_ = true;
        closed_ = (data.flags & kPolylineClosed) != 0;
        polylineLayer_ = layerOf(attributes.getLayer());
        polylineSource_ = source();
        polylinePlane_ = (data.flags & kPolylineInSpace) != 0 ? Affine{} : ownPlane();
        noteHeight("polyline", data.elevation != 0.0);
    }
    void addVertex(const DL_VertexData &data) override {
        if (inPolyline_) vertices_.push_back({{data.x, data.y}, data.bulge});
    }
    void endSequence() override { finishPolyline(); }

    void addInsert(const DL_InsertData &data) override {
        finishPolyline();
        if (data.sx == 0.0 || data.sy == 0.0) return leaveOut("INSERT with a scale of zero");
        noteHeight("INSERT", data.ipz != 0.0);
        const Affine outer =
            ownPlane() * Affine::move(data.ipx, data.ipy) * Affine::turn(data.angle);
        blocks_[block_].items.emplace_back(std::make_unique<Insert>(
            Insert{blockKey(data.name), outer, Affine::scale(data.sx, data.sy),
                   std::max(1, data.cols), std::max(1, data.rows), data.colSp, data.rowSp,
                   layerOf(attributes.getLayer()), source()}));
    }

  private:
    bool isSeenFromBehind() const { return extrusion->getDirection()[2] < 0.0; }
    /// Entities seen from behind have coordinates with a mirrored x.
    Affine ownPlane() const { return Affine::scale(isSeenFromBehind() ? -1.0 : 1.0, 1.0); }

    static void normaliseTurn(DTELLIPSE &ellipse) {
        const double span = ellipse.end - ellipse.start;
        const bool whole = std::fabs(std::fabs(span) - kFullTurnDeg) < kFullEllipseSlackDeg;
        if (whole || a2d_StdSedeg(&ellipse.start, &ellipse.end) == 1) {
            ellipse.start = 0.0;
            ellipse.end = kFullTurnDeg;
        }
    }

    void add(const Shape &shape, const Affine &plane) {
        blocks_[block_].items.emplace_back(
            Entity{placed(shape, plane), layerOf(attributes.getLayer()), source()});
    }

    void finishPolyline() {
        if (!std::exchange(inPolyline_, false)) return;
        Segments segments = segmentsOf(vertices_, closed_);
        for (Shape &shape : segments.shapes)
            shape = placed(shape, polylinePlane_);
        if (!segments.shapes.empty()) {
            blocks_[block_].items.emplace_back(std::make_unique<Polyline>(
                Polyline{std::move(segments.shapes), closed_, polylineLayer_, polylineSource_}));
        }
        leaveOut("polyline segment of no length", segments.ofNoLength);
        if (segments.nearlyFlat > 0) drawing_.simplified[kNearlyFlat] += segments.nearlyFlat;
        if (vertices_.size() < 2) leaveOut("polyline of fewer than two vertices");
        vertices_.clear();
    }

    /// The feed has put it where the handle was.
    std::uint32_t source() const {
        return block_.empty() ? static_cast<std::uint32_t>(attributes.getHandle()) : kNowhere;
    }

    std::uint32_t layerOf(const std::string &name) {
        const auto next = static_cast<std::uint32_t>(drawing_.layers.size());
        const auto [found, isNew] = layerIndex_.try_emplace(name, next);
        if (isNew) drawing_.layers.push_back({name});
        return found->second;
    }

    void leaveOut(const std::string &kind, std::size_t count = 1) {
        if (count > 0) leftOut_[block_][kind] += count;
    }
    void noteHeight(const std::string &kind, bool has) {
        if (has) ++drawing_.simplified[kind + " off the plane z = 0"];
    }

    TallyByBlock &leftOut_;
    Drawing &drawing_;
    Blocks blocks_;
    std::string block_;
    std::unordered_map<std::string, std::uint32_t> layerIndex_;
    bool inPolyline_ = false;
    bool closed_ = false;
    std::uint32_t polylineLayer_ = 0;
    std::uint32_t polylineSource_ = kNowhere;
    Affine polylinePlane_;
    std::vector<Vertex> vertices_;
};

void parse(DxfFile &file) {
    TallyByBlock leftOut;
    RecordFeed feed(file.text, leftOut, file.sources);
    std::istream stream(&feed);
    Collector collector(leftOut, file.drawing);
    DL_Dxf dxflib;
    dxflib.in(stream, &collector);
    feed.rethrow();
    if (!feed.sawEntities()) throw Failure("the file has no section of entities");
    unfold(collector.blocks(), leftOut, file.drawing);
}

} // namespace

DxfFile readDxf(const std::string &path) {
    try {
        DxfFile file;
        file.drawing.path = path;
        file.text = loadText(path);
        parse(file);
        return file;
    } catch (const Failure &failure) {
        throw Failure(path + ": " + failure.what());
    }
}

} // namespace draft
