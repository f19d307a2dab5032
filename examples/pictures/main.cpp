// Draws a picture of every exported function by calling it: SVG files for the documentation.
#include <iostream>

#include "album.h"

int main(int argc, char **argv) {
    using namespace pictures;
    if (argc != 3) {
        std::cerr << "usage: planegeo_pictures EXPORTS.txt FOLDER\n";
        return 2;
    }
    Album album;
    for (const auto draw : {drawSettings,
                            drawAngles,
                            drawPoints,
                            drawLines,
                            drawLineCircle,
                            drawCircleCircle,
                            drawArcs,
                            drawCircleTangents,
                            drawSolvers,
                            drawEllipses,
                            drawEllipseQueries,
                            drawMeasure,
                            drawChains,
                            drawDivision,
                            drawExtents,
                            drawLineEllipse,
                            drawConics,
                            drawFeet,
                            drawEllipseTangents,
                            drawEllipseDistance}) {
        draw(album);
    }
    return album.write(argv[2], argv[1]) ? 0 : 1;
}
