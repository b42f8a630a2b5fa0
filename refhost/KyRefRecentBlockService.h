// KyRefRecentBlockService: the blocks inserted lately, most recent first, as
// a test or script sets them.
#pragma once

#include <vector>

#include "kydi/KyDiRecentBlockService.h"

class KyRefRecentBlockService : public KyDiRecentBlockService {
public:
    Kyro::ErrorStatus getRecentBlockNames(KyArray<KyString>& names) override;

    void setNames(std::vector<KyString> names) { m_names = std::move(names); }
    // Puts `name` in front, taking it from where it stood.
    void noteInserted(const wchar_t* name);

private:
    std::vector<KyString> m_names;
};
