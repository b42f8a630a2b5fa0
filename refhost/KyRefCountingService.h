// KyRefCountingService: the host's counts of objects, as a test or script
// sets them, and which of them is active.
#pragma once

#include <vector>

#include "kydi/KyDiCountingService.h"

class KyRefCountingService : public KyDiCountingService {
public:
    Kyro::ErrorStatus getRecords(KyArray<KyDiCountingRecord>& records) override;
    // eNotApplicable when no count is active.
    Kyro::ErrorStatus getActiveRecord(KyString& name, KyString& value) override;

    void setRecords(std::vector<KyDiCountingRecord> records) { m_records = std::move(records); }
    // -1: none is active.
    void setActiveIndex(int index) { m_active = index; }

private:
    std::vector<KyDiCountingRecord> m_records;
    int m_active = -1;
};
