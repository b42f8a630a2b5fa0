#include "KyRefRecentBlockService.h"

#include <algorithm>

#include "KyRefHost.h"

Kyro::ErrorStatus KyRefRecentBlockService::getRecentBlockNames(KyArray<KyString>& names) {
    for (const KyString& name : m_names) {
        names.append(name);
    }
    return Kyro::eOk;
}

void KyRefRecentBlockService::noteInserted(const wchar_t* name) {
    const KyString inserted(name);
    std::erase_if(
        m_names, [&inserted](const KyString& known) { return known.compareNoCase(inserted) == 0; });
    m_names.insert(m_names.begin(), inserted);
}

KyDbObjectId KyRefRecentBlockService::blockBeingEdited() const {
    return m_host.blockEditor().editedBlockId();
}
