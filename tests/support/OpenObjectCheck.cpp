// A test that leaves a database object open fails: a listener, installed
// before main runs, compares the count of open objects at the start and end
// of every test. The count does not drop when a database is deleted with
// objects open, so a test that forgets a close fails even when it deletes its
// database.
#include "support/OpenObjectCheck.h"

#include <gtest/gtest.h>

#include "db/KyDbOpenObject.h"

void KyTestOpenObjectCheck::start() {
    m_openAtStart = kydbOpenObjectCount();
}

void KyTestOpenObjectCheck::finish(const char* testName) const {
    const long long left = kydbOpenObjectCount() - m_openAtStart;
    if (left > 0) {
        ADD_FAILURE() << testName << " left " << left << " database object open(s) without a close";
    }
}

namespace {

class OpenObjectListener : public ::testing::EmptyTestEventListener {
public:
    void OnTestStart(const ::testing::TestInfo&) override { m_check.start(); }
    // Listeners hear the end of a test before the result is printed, and
    // while failures still count for the test.
    void OnTestEnd(const ::testing::TestInfo& test) override { m_check.finish(test.name()); }

private:
    KyTestOpenObjectCheck m_check;
};

// UnitTest::GetInstance is a function-local static, so appending from a static
// constructor is safe whatever the order of static construction.
struct OpenObjectListenerInstaller {
    OpenObjectListenerInstaller() {
        ::testing::UnitTest::GetInstance()->listeners().Append(new OpenObjectListener());
    }
};
const OpenObjectListenerInstaller g_installer;

}  // namespace
