// KyGuid: a 128-bit identifier, the class id of a database object
// (KyDbObject::getClassID), laid out as such ids are usually written:
// 32 bits, 16 bits, 16 bits, then 8 bytes.
#pragma once

#include <cstdint>

struct KyGuid {
    std::uint32_t data1 = 0;
    std::uint16_t data2 = 0;
    std::uint16_t data3 = 0;
    std::uint8_t data4[8] = {};

    bool operator==(const KyGuid& other) const = default;
};
