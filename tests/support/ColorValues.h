// Shared test support: colours made in a line.
#pragma once

#include "db/KyCmColor.h"

namespace kytest {

inline KyCmColor indexColor(unsigned short index) {
    KyCmColor color;
    color.setColorIndex(index);
    return color;
}

inline KyCmColor trueColor(unsigned char red, unsigned char green, unsigned char blue) {
    KyCmColor color;
    color.setRGB(red, green, blue);
    return color;
}

}  // namespace kytest
