#include "KyRefRenderService.h"

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbRenderSettings.h"

KyRefRenderService::KyRefRenderService(KyRefHost& host)
    : m_host(host),
      m_hostPresets{KyString(L"Draft"), KyString(L"Low"), KyString(L"Medium"), KyString(L"High"),
                    KyString(L"Presentation")},
      m_current(L"Medium"),
      m_outputSize(L"640x480") {}

Kyro::ErrorStatus KyRefRenderService::getCurrentPresetName(KyString& name) {
    name = m_current;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefRenderService::setCurrentPreset(const KyString& name) {
    KyDbObjectId id;
    bool known = findPreset(kDrawingPresets, name, id) == Kyro::eOk;
    for (const KyString& preset : m_hostPresets) {
        known = known || preset.compareNoCase(name) == 0;
    }
    if (!known) {
        return Kyro::eKeyNotFound;
    }
    m_current = name;
    m_appliedPresets.push_back(name);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefRenderService::findPreset(int where, const KyString& name,
                                                 KyDbObjectId& id) {
    id.setNull();
    KyDbDatabase* database = m_host.documents().currentDatabase();
    if (where != kDrawingPresets || database == nullptr) {
        return Kyro::eKeyNotFound;
    }
    KyRefReadAccess<KyDbDictionary> presets(database->renderSettingsDictionaryId());
    if (!presets) {
        return Kyro::eKeyNotFound;
    }
    for (KyDbDictionaryIterator it(presets.object()); !it.done(); it.next()) {
        KyRefReadAccess<KyDbRenderSettings> preset(it.objectId());
        if (preset && preset->name().compareNoCase(name) == 0) {
            id = it.objectId();
            return Kyro::eOk;
        }
    }
    return Kyro::eKeyNotFound;
}

Kyro::ErrorStatus KyRefRenderService::getPresetIds(KyDbDatabase* database,
                                                   KyArray<KyDbObjectId>& ids) {
    if (database == nullptr) {
        return Kyro::eInvalidInput;
    }
    KyRefReadAccess<KyDbDictionary> presets(database->renderSettingsDictionaryId());
    if (!presets) {
        return presets.status();
    }
    for (KyDbDictionaryIterator it(presets.object()); !it.done(); it.next()) {
        ids.append(it.objectId());
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefRenderService::getPresetDictionaryId(KyDbDatabase* database,
                                                            KyDbObjectId& owner) {
    if (database == nullptr) {
        return Kyro::eInvalidInput;
    }
    owner = database->renderSettingsDictionaryId();
    return owner.isNull() ? Kyro::eKeyNotFound : Kyro::eOk;
}

Kyro::ErrorStatus KyRefRenderService::getOutputSize(KyString& text) {
    KyDbObjectId id;
    if (findPreset(kDrawingPresets, m_current, id) == Kyro::eOk) {
        KyRefReadAccess<KyDbRenderSettings> preset(id);
        if (preset && !preset->outputSize().isEmpty()) {
            text = preset->outputSize();
            return Kyro::eOk;
        }
    }
    text = m_outputSize;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefRenderService::setDisplayProperties(bool display) {
    if (display && !m_paletteAvailable) {
        return Kyro::eNotApplicable;
    }
    m_displayProperties = display;
    return Kyro::eOk;
}
