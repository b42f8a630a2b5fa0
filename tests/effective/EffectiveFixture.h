// The data item layer on the reference host with the sample drawing open, and
// a first refresh pass behind it, so that the effective properties are bound
// to the sample. A spy writes what an effective property reports, one line
// each, in the order received: "propertyChanged LAYER",
// "allPropertiesChanged".
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "KyRefHost.h"
#include "kydi/KyDiEffectiveProperty.h"
#include "kydi/KyDiEffectivePropertyReactor.h"
#include "kydi/KyDiFunctions.h"
#include "manager/RefHostFixture.h"

namespace kytest {

using Reports = std::vector<std::string>;

class EffectiveSpy : public KyDiEffectivePropertyReactor {
public:
    explicit EffectiveSpy(KyDiEffectiveProperty* effective) : m_effective(effective) {
        m_effective->addReactor(this);
    }
    ~EffectiveSpy() override { m_effective->removeReactor(this); }
    EffectiveSpy(const EffectiveSpy&) = delete;
    EffectiveSpy& operator=(const EffectiveSpy&) = delete;

    void propertyChanged(const wchar_t* key) override {
        lines.push_back("propertyChanged " + KyString(key).utf8());
    }
    void allPropertiesChanged() override { lines.push_back("allPropertiesChanged"); }
    Reports take() { return std::exchange(lines, {}); }

    Reports lines;

private:
    KyDiEffectiveProperty* m_effective;
};

class EffectiveFixture : public RefHostFixture {
protected:
    EffectiveFixture() : RefHostFixture(onManualClock(), Drawing::kNone) {}

    void SetUp() override {
        KyString error;
        sample = host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error);
        ASSERT_NE(sample, nullptr) << error.utf8();
        RefHostFixture::SetUp();
        pass();
        effective = KyDiManager::getEffectiveProperty();
        ASSERT_NE(effective, nullptr);
    }

    static void pass() { KyDiManager::refresh(); }

    using Getter = Kyro::ErrorStatus (KyDiEffectiveProperty::*)(KyDiDynamicObject*&);
    // The name of the item a getter answers, "varies" for eOk without one,
    // or the status of a failure.
    std::string read(Getter getter) {
        KyDiDynamicObject* item = nullptr;
        const Kyro::ErrorStatus status = (effective->*getter)(item);
        if (status != Kyro::eOk) {
            return "status " + std::to_string(status);
        }
        return item != nullptr ? KyDiGetItemName(item).utf8() : std::string("varies");
    }

    KyRefDocument* sample = nullptr;
    KyDiEffectiveProperty* effective = nullptr;
};

}  // namespace kytest
