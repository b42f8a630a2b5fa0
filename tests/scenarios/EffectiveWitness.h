// Checks the effective property clients are given, as a property bar beside
// the storm sees it: every look with a drawing in front reads the twelve
// values, and one that reads differently from the last look must have been
// told since (its key, or all).
// With a selection of entities only, the layer and the colour must be what
// the selected entities share, read from them directly: the record of their
// common layer, their common colour, or no item where they differ.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "KyRefSelectionService.h"
#include "collections/KyDiImpDbObjectCollection.h"
#include "db/KyDbEntity.h"
#include "db/KyDbFullSubentPath.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiEffectiveProperty.h"
#include "kydi/KyDiEffectivePropertyReactor.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"

namespace kytest {

class EffectiveWitness : public KyDiEffectivePropertyReactor {
public:
    explicit EffectiveWitness(KyRefHost& host)
        : m_host(host), m_effective(KyDiManager::getEffectiveProperty()) {
        m_effective->addReactor(this);
    }
    ~EffectiveWitness() override { m_effective->removeReactor(this); }
    EffectiveWitness(const EffectiveWitness&) = delete;
    EffectiveWitness& operator=(const EffectiveWitness&) = delete;

    void propertyChanged(const wchar_t* key) override { m_told.insert(KyString(key).utf8()); }
    void allPropertiesChanged() override { m_toldAll = true; }

    // After the passes that bring everything in step. A batch drops what was
    // marked before it: after one, values are taken as they read.
    void look(const std::string& when, bool afterBatch) {
        // Without a drawing in front nothing is told, as nothing applies; the
        // next drawing tells all.
        if (m_host.documents().current() == nullptr) {
            m_last.clear();
            m_told.clear();
            m_toldAll = false;
            return;
        }
        using E = KyDiEffectiveProperty;
        const std::pair<const char*, Kyro::ErrorStatus (E::*)(KyDiDynamicObject*&)> keys[] = {
            {"LAYER", &E::getLayer},
            {"DIMSTYLE", &E::getDimensionStyle},
            {"TEXTSTYLE", &E::getTextStyle},
            {"LINETYPE", &E::getLinetype},
            {"KYRO_MLEADERSTYLE", &E::getMLeaderStyle},
            {"KYRO_SECTIONVIEWSTYLE", &E::getSectionViewStyle},
            {"KYRO_DETAILVIEWSTYLE", &E::getDetailViewStyle},
            {"KYRO_TABLESTYLE", &E::getTableStyle},
            {"KYRO_MATERIAL", &E::getMaterial},
            {"LINEWEIGHT", &E::getLineWeight},
            {"COLOR", &E::getColor},
            {"TRANSPARENCY", &E::getTransparency},
        };
        std::map<std::string, KyDiDynamicObject*> items;
        for (const auto& [key, getter] : keys) {
            KyDiDynamicObject* item = nullptr;
            const Kyro::ErrorStatus status = (m_effective->*getter)(item);
            items[key] = status == Kyro::eOk ? item : nullptr;
            const std::string text = "status " + std::to_string(status) + " " +
                                     (item != nullptr ? KyDiGetItemName(item).utf8() : "-");
            const auto last = m_last.find(key);
            if (!afterBatch && last != m_last.end() && last->second != text && !m_toldAll &&
                !m_told.contains(key)) {
                ADD_FAILURE() << "the effective " << key << " went from " << last->second << " to "
                              << text << " untold " << when;
            }
            m_last[key] = text;
        }
        m_told.clear();
        m_toldAll = false;
        expectShared(items, when);
    }

private:
    // The layer and colour the selected entities share, read from them.
    void expectShared(std::map<std::string, KyDiDynamicObject*>& items, const std::string& when) {
        KyArray<KyDbObjectId> ids;
        KyDiSelectionService::SubentPathArray paths;
        KyRefSelectionService* selection = m_host.selectionService();
        if (!selection->hasSelection() || selection->getSelection(ids, paths) != Kyro::eOk ||
            ids.isEmpty()) {
            return;
        }
        std::set<KyDbObjectId> layers;
        std::vector<KyCmColor> colors;
        for (int i = 0; i < ids.length(); ++i) {
            KyDbObjectPointer<KyDbEntity> entity(ids[i], KyDb::kForRead);
            if (!entity) {
                return;  // something else is selected: no plain expectation
            }
            layers.insert(entity->layerId());
            if (colors.empty() || !(colors.front() == entity->color())) {
                colors.push_back(entity->color());
            }
        }
        KyDiDynamicObject* layer = items["LAYER"];
        if (layers.size() > 1) {
            EXPECT_EQ(layer, nullptr) << "the selected layers differ " << when;
        } else {
            EXPECT_TRUE(layer != nullptr &&
                        KyDiImpDbObjectCollection::idOf(layer) == *layers.begin())
                << "the effective layer is not the selected entities' own " << when;
        }
        KyDiDynamicObject* color = items["COLOR"];
        if (colors.size() > 1) {
            EXPECT_EQ(color, nullptr) << "the selected colours differ " << when;
        } else {
            const KyCmColor* shown =
                color != nullptr ? valueCast<KyCmColor>(color->value()) : nullptr;
            EXPECT_TRUE(shown != nullptr && *shown == colors.front())
                << "the effective colour is not the selected entities' own " << when;
        }
    }

    KyRefHost& m_host;
    KyDiEffectiveProperty* m_effective;
    std::map<std::string, std::string> m_last;
    std::set<std::string> m_told;
    bool m_toldAll = false;
};

}  // namespace kytest
