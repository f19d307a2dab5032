/* The header compiles as plain C99; the program is linked with the other tests. */
#include "planegeo.h"

double planegeo_header_is_c(void);

double planegeo_header_is_c(void) {
    DTPOINT origin = {0.0, 0.0};
    DTLINE line = {0, 0.0, 0.0, 3.0, 4.0};
    DTPOINT end = {line.x2, line.y2};
    return ca_dstpt(&origin, &end);
}
