// Shared test support: the check that every database object opened during a
// test was closed by its end. Installed for every test program by
// OpenObjectCheck.cpp.
#pragma once

class KyTestOpenObjectCheck {
public:
    // Notes the opens that stand at the start of a test.
    void start();
    // Adds a failure to the running test when opens were left standing
    // since start().
    void finish(const char* testName) const;

private:
    long long m_openAtStart = 0;
};
