#include "KyRefCountingService.h"

Kyro::ErrorStatus KyRefCountingService::getRecords(KyArray<KyDiCountingRecord>& records) {
    for (const KyDiCountingRecord& record : m_records) {
        records.append(record);
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefCountingService::getActiveRecord(KyString& name, KyString& value) {
    if (m_active < 0 || m_active >= static_cast<int>(m_records.size())) {
        return Kyro::eNotApplicable;
    }
    const KyDiCountingRecord& record = m_records[static_cast<std::size_t>(m_active)];
    name = record.name;
    value = record.value;
    return Kyro::eOk;
}
