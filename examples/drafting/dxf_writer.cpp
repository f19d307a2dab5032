#include "dxf_writer.h"

#include "dxf_frame.h"

namespace draft {

namespace {

constexpr double kRadPerDeg = 0.017453292519943295;

struct Write {
    DL_Dxf &dxf;
    DL_WriterA &out;
    DL_Attributes attributes;

    void operator()(const DTLINE &line) const {
        dxf.writeLine(out, DL_LineData(line.x1, line.y1, 0.0, line.x2, line.y2, 0.0), attributes);
    }
    void operator()(const DTARC &arc) const {
        if (isClosed(arc)) {
            dxf.writeCircle(out, DL_CircleData(arc.cx, arc.cy, 0.0, arc.r), attributes);
        } else {
            dxf.writeArc(out, DL_ArcData(arc.cx, arc.cy, 0.0, arc.r, arc.start, arc.end),
                         attributes);
        }
    }
    void operator()(const DTELLIPSE &e) const {
        const double half = e.a / 2.0;
        dxf.writeEllipse(out,
                         DL_EllipseData(e.cx, e.cy, 0.0, half * cosd(e.rot), half * sind(e.rot),
                                        0.0, e.b / e.a, e.start * kRadPerDeg, e.end * kRadPerDeg),
                         attributes);
    }
};

} // namespace

std::string dxfText(const Drawing &drawing) {
    std::vector<FrameLayer> layers;
    for (const Layer &layer : drawing.layers)
        layers.push_back({layer.name, layer.color});
    return framedText(layers, {}, [&](DL_Dxf &dxf, DL_WriterA &out) {
        for (const Entity &entity : drawing.entities)
            std::visit(Write{dxf, out, onLayer(drawing.layers[entity.layer].name)}, entity.shape);
    });
}

} // namespace draft
