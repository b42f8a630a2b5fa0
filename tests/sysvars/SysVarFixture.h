// A started layer over a fake host with one open document and a few of the
// host's variables, and helpers that build values.
#pragma once

#include "kydi/KyDiSysVar.h"
#include "manager/ManagerFixture.h"
#include "manager/RecordingReactors.h"

namespace kytest {

inline resbuf shortValue(short value) {
    resbuf record{};
    record.restype = KYRB_SHORT;
    record.resval.rint = value;
    return record;
}

inline resbuf realValue(double value, short code = KYRB_REAL) {
    resbuf record{};
    record.restype = code;
    record.resval.rreal = value;
    return record;
}

inline resbuf textValue(const wchar_t* text) {
    resbuf record{};
    record.restype = KYRB_STRING;
    record.resval.rstring = const_cast<wchar_t*>(text);
    return record;
}

class SysVarFixture : public ManagerFixture {
protected:
    void SetUp() override {
        ManagerFixture::SetUp();
        document = host.documents.openDocument();
        FakeEditor& editor = host.editorService;
        editor.setShort(L"LUPREC", 4);
        editor.limit(L"LUPREC", 0, 8);
        editor.setText(L"TEXTSTYLE", L"Standard");
        editor.setReal(L"FILLETRAD", 0.0);
    }

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
    std::vector<std::wstring>& commands() { return host.editorService.commands; }

    KyDiDocument document = kKyDiNoDocument;
};

}  // namespace kytest
