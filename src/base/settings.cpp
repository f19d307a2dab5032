// The process-wide settings and their accessors.

#include "base/settings.h"

#include "planegeo.h"

namespace planegeo {

Settings settings; // initialised statically: nothing runs at load

} // namespace planegeo

using planegeo::settings;

extern "C" {

double ca_geterrdist(void) { return settings.errdist; }
void ca_seterrdist(double tolerance) { settings.errdist = tolerance; }

int32_t ca_GetStartendFlg(void) { return settings.startendFlg; }
void ca_SetStartendFlg(int32_t flag) { settings.startendFlg = flag; }

double *ca_Simpson_getParmtbl(void) { return settings.simpsonParameters; }

} // extern "C"
