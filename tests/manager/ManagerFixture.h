// A started data item layer over a fake host on a manual clock. The layer
// stops at the end of the test, unless the test stopped it itself.
#pragma once

#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "manager/FakeDiHost.h"

namespace kytest {

class ManagerFixture : public ::testing::Test {
protected:
    void SetUp() override { KyDiManager::initialize(&host); }
    void TearDown() override { stop(); }

    void stop() {
        if (!m_stopped) {
            m_stopped = true;
            KyDiManager::uninitialize();
        }
    }
    // Raises a host event through the reactor the layer registered.
    template <typename Event>
    void raise(Event event) {
        host.raise(event);
    }

    ManualClock clock;
    FakeDiHost host;

private:
    bool m_stopped = false;
};

}  // namespace kytest
