// KyAppClassList: `kydi classes`, the runtime classes that the platform knows
// by name, with their parents and value sizes.
#pragma once

#include <ostream>

class KyAppClassList {
public:
    // Writes one class a line, then their count.
    static void write(std::ostream& out);
};
