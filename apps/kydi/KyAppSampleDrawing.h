// KyAppSampleDrawing: where the drawing that kydi opens when none is named
// lies. An installed program finds it beside itself, in
// share/kydi/samples/ of its prefix; a program run from its build tree finds
// it in the samples/ folder of the sources it was built from.
#pragma once

#include <string>

class KyAppSampleDrawing {
public:
    // The path of the sample; empty when it is in neither place.
    static std::string path();
};
