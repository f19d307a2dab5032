/* A host in C: tells whether the library answers and is the version expected. */
#include <planegeo.h>

#include <stdio.h>
#include <string.h>

int main(int argc, char **argv) {
    const DTPOINT a1 = {0.0, 0.0}, a2 = {4.0, 4.0}, b1 = {0.0, 4.0}, b2 = {4.0, 0.0};
    DTPOINT crossing = {0.0, 0.0};
    char version[40];
    sprintf(version, "%d.%d.%d", PLANEGEO_VERSION_MAJOR, PLANEGEO_VERSION_MINOR,
            PLANEGEO_VERSION_PATCH);
    if (argc != 2 || strcmp(version, argv[1]) != 0) {
        fprintf(stderr, "the header tells version %s\n", version);
        return 1;
    }
    return a2d_ins2l(&a1, &a2, &b1, &b2, &crossing) == 0 && crossing.x == 2.0 && crossing.y == 2.0
               ? 0
               : 1;
}
