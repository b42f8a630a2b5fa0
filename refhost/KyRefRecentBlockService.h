// KyRefRecentBlockService: the blocks inserted lately, most recent first, as
// a test or script sets them; and the block open in the block editor.
#pragma once

#include <vector>

#include "db/KyDbObjectId.h"
#include "kydi/KyDiRecentBlockService.h"

class KyRefHost;

class KyRefRecentBlockService : public KyDiRecentBlockService {
public:
    explicit KyRefRecentBlockService(KyRefHost& host) : m_host(host) {}

    Kyro::ErrorStatus getRecentBlockNames(KyArray<KyString>& names) override;

    void setNames(std::vector<KyString> names) { m_names = std::move(names); }
    // Puts `name` in front, taking it from where it stood.
    void noteInserted(const wchar_t* name);
    // The block open in the block editor of the current document; null when
    // none is (KyRefBlockEditor).
    KyDbObjectId blockBeingEdited() const;

private:
    KyRefHost& m_host;
    std::vector<KyString> m_names;
};
