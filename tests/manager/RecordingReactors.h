// Spy reactors: each notification becomes one line, in the order received,
// so that a test asserts the whole sequence after the act.
#pragma once

#include <cwchar>
#include <string>
#include <vector>

#include "base/resbuf.h"
#include "kydi/KyDiDataValueReactor.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiManagerReactor.h"
#include "kydi/KyDiSysVar.h"

namespace kytest {

using Lines = std::vector<std::wstring>;

inline std::wstring valueText(const resbuf* value) {
    if (value == nullptr) {
        return L"null";
    }
    wchar_t buffer[96] = {};
    switch (value->restype) {
        case KYRB_SHORT:
            return std::to_wstring(value->resval.rint);
        case KYRB_LONG:
            return std::to_wstring(value->resval.rlong);
        case KYRB_REAL:
        case KYRB_ANGLE:
        case KYRB_ORIENT:
            std::swprintf(buffer, 96, L"%.9g", value->resval.rreal);
            return buffer;
        case KYRB_POINT:
            std::swprintf(buffer, 96, L"(%.9g,%.9g)", value->resval.rpoint[0],
                          value->resval.rpoint[1]);
            return buffer;
        case KYRB_3DPOINT:
            std::swprintf(buffer, 96, L"(%.9g,%.9g,%.9g)", value->resval.rpoint[0],
                          value->resval.rpoint[1], value->resval.rpoint[2]);
            return buffer;
        case KYRB_STRING:
            return value->resval.rstring != nullptr ? value->resval.rstring : L"";
        default:
            return L"code " + std::to_wstring(value->restype);
    }
}

// Watches one system variable for as long as it lives.
class SysVarSpy final : public KyDiDataValueReactor {
public:
    explicit SysVarSpy(KyDiSysVar* sysVar, Lines* sink = nullptr)
        : m_sysVar(sysVar), m_sink(sink != nullptr ? sink : &lines) {
        m_sysVar->addReactor(this);
    }
    ~SysVarSpy() override { m_sysVar->removeReactor(this); }
    SysVarSpy(const SysVarSpy&) = delete;
    SysVarSpy& operator=(const SysVarSpy&) = delete;

    void valueChanged(const resbuf* value) override {
        m_sink->push_back(L"valueChanged " + std::wstring(m_sysVar->name()) + L" " +
                          valueText(value));
    }
    void activeChanged(bool active) override {
        m_sink->push_back(L"activeChanged " + std::wstring(m_sysVar->name()) +
                          (active ? L" true" : L" false"));
    }

    Lines lines;

private:
    KyDiSysVar* m_sysVar;
    Lines* m_sink;
};

// Counts refresh passes; registered for as long as it lives.
class PassSpy : public KyDiManagerReactor {
public:
    explicit PassSpy(Lines* sink = nullptr) : m_sink(sink != nullptr ? sink : &lines) {
        KyDiManager::addReactor(this);
    }
    ~PassSpy() override { KyDiManager::removeReactor(this); }
    PassSpy(const PassSpy&) = delete;
    PassSpy& operator=(const PassSpy&) = delete;

    void refreshStarting() override { m_sink->push_back(L"refreshStarting"); }
    void refreshEnded() override {
        ++passes;
        m_sink->push_back(L"refreshEnded");
    }

    int passes = 0;
    Lines lines;

private:
    Lines* m_sink;
};

}  // namespace kytest
