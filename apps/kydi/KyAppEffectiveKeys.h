// KyAppEffectiveKeys: the twelve keys of the effective property as the kydi
// program shows them ("LAYER", "DIMSTYLE" ... "TRANSPARENCY"), each with its
// getter and setter, in the order of the getters.
#pragma once

#include <span>
#include <string>

#include "base/KyroErrorStatus.h"

class KyDiDynamicObject;
class KyDiEffectiveProperty;

class KyAppEffectiveKeys {
public:
    struct Row {
        const char* key;
        Kyro::ErrorStatus (KyDiEffectiveProperty::*get)(KyDiDynamicObject*& item);
        Kyro::ErrorStatus (KyDiEffectiveProperty::*set)(KyDiDynamicObject* item);
    };

    static std::span<const Row> rows();
    // The row of `key`; null for any other word.
    static const Row* find(const std::string& key);
};
