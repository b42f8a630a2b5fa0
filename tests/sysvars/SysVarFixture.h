// A started layer over the reference host with one new drawing, and helpers
// that get a variable and read it as a client does.
#pragma once

#include <string>

#include "kydi/KyDiSysVar.h"
#include "manager/RecordingReactors.h"
#include "manager/RefHostFixture.h"
#include "manager/ResbufValues.h"

namespace kytest {

class SysVarFixture : public RefHostFixture {
protected:
    using RefHostFixture::RefHostFixture;

    KyDiSysVar* sysVar(const wchar_t* name) {
        KyDiSysVar* found = KyDiManager::getSysVar(name);
        EXPECT_NE(found, nullptr) << "no variable " << KyString(name).utf8();
        return found;
    }
    // The value as a client reads it, in the spies' notation.
    std::wstring valueOf(const wchar_t* name) {
        resbuf value{};
        if (sysVar(name)->getValue(value) != Kyro::eOk) {
            return L"none";
        }
        return valueText(&value);
    }
};

}  // namespace kytest
