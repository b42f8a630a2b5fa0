// The drawings of the benchmarks: the host and the layer started once for the
// process; one drawing for each number of layers, each with a paper space
// viewport that freezes one layer; one drawing for each number and shape of
// objects to select; and the reactor that counts what a collection told.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbCircle.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLine.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbUndoController.h"
#include "db/KyDbViewport.h"
#include "kydi/KyDiCollectionReactor.h"
#include "kydi/KyDiEffectiveProperty.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"

namespace kybench {

// The twelve getters of the effective property, in the order of its keys.
using EffectiveGetter = Kyro::ErrorStatus (KyDiEffectiveProperty::*)(KyDiDynamicObject*&);
inline constexpr EffectiveGetter kGetters[] = {
    &KyDiEffectiveProperty::getLayer,           &KyDiEffectiveProperty::getDimensionStyle,
    &KyDiEffectiveProperty::getTextStyle,       &KyDiEffectiveProperty::getLinetype,
    &KyDiEffectiveProperty::getMLeaderStyle,    &KyDiEffectiveProperty::getSectionViewStyle,
    &KyDiEffectiveProperty::getDetailViewStyle, &KyDiEffectiveProperty::getTableStyle,
    &KyDiEffectiveProperty::getMaterial,        &KyDiEffectiveProperty::getLineWeight,
    &KyDiEffectiveProperty::getColor,           &KyDiEffectiveProperty::getTransparency,
};

struct Drawing {
    KyRefDocument* document = nullptr;
    std::vector<KyDbObjectId> layers;
    KyDbObjectId viewport;
};

// How the objects of a selection drawing differ.
enum class Shape {
    // Lines alike: one layer, colour, linetype and lineweight.
    kUniform,
    // Lines on two layers, in three colours, two linetypes and two
    // lineweights, and every tenth object a circle.
    kMixed,
};

struct SelectionDrawing {
    KyRefDocument* document = nullptr;
    // The objects to select, in drawing order.
    std::vector<KyDbObjectId> objects;
};

// The host and the layer, started once for the process: one drawing for each
// number of layers, each with a paper space viewport that freezes one layer,
// and one for each number and shape of objects to select.
class Session {
public:
    static Session& instance() {
        static Session* s_session = new Session();
        return *s_session;
    }

    Drawing& use(int count) {
        auto found = m_drawings.find(count);
        if (found == m_drawings.end()) {
            found = m_drawings.emplace(count, make(count)).first;
        }
        m_host.documents().makeCurrent(found->second.document);
        m_host.plotService()->setLayoutByName(KyDbStandardContent::kFirstLayoutName);
        m_host.leaveViewport();
        KyDiManager::getKnownCollection(L"LAYER");
        KyDiManager::refresh();
        KyDiManager::refresh();
        return found->second;
    }

    // The drawing of `count` objects of `shape` in front, in model space;
    // what it has selected is left as it was.
    SelectionDrawing& useSelection(int count, Shape shape) {
        const auto key = std::make_pair(count, shape);
        auto found = m_selectionDrawings.find(key);
        if (found == m_selectionDrawings.end()) {
            found = m_selectionDrawings.emplace(key, makeSelection(count, shape)).first;
        }
        m_host.documents().makeCurrent(found->second.document);
        KyDiManager::refresh();
        KyDiManager::refresh();
        return found->second;
    }

    KyRefHost& host() { return m_host; }
    KyDbDatabase* db() { return m_host.documents().current()->database(); }

private:
    Session() : m_host(options()) { KyDiManager::initialize(&m_host); }
    static KyRefHostOptions options() {
        KyRefHostOptions options;
        options.manualClock = true;
        return options;
    }

    Drawing make(int count) {
        Drawing drawing;
        drawing.document = m_host.documents().newDocument();
        KyDbDatabase* db = drawing.document->database();
        const KyAxDocLock lock(db);
        db->undoController()->setRecording(false);
        {
            KyDbObjectPointer<KyDbSymbolTable> table(db->layerTableId(), KyDb::kForWrite);
            for (int i = 0; i < count; ++i) {
                auto* record = new KyDbLayerTableRecord();
                record->setName(KyString::formatted(L"L%d", i));
                KyDbObjectId id;
                table->add(id, record);
                record->close();
                drawing.layers.push_back(id);
            }
        }
        KyDbObjectId paperId;
        {
            KyDbObjectPointer<KyDbSymbolTable> blocks(db->blockTableId(), KyDb::kForRead);
            blocks->getAt(KyDbStandardContent::kPaperSpaceName, paperId);
        }
        KyDbObjectPointer<KyDbBlockTableRecord> paper(paperId, KyDb::kForWrite);
        // The paper itself, then the viewport onto model space.
        for (int i = 0; i < 2; ++i) {
            auto* viewport = new KyDbViewport();
            paper->appendKyDbEntity(drawing.viewport, viewport);
            if (i == 1) {
                KyArray<KyDbObjectId> frozen;
                frozen.append(drawing.layers[drawing.layers.size() / 2]);
                viewport->freezeLayersInViewport(frozen);
            }
            viewport->close();
        }
        db->undoController()->setRecording(true);
        return drawing;
    }

    SelectionDrawing makeSelection(int count, Shape shape) {
        SelectionDrawing drawing;
        drawing.document = m_host.documents().newDocument();
        KyDbDatabase* db = drawing.document->database();
        const KyAxDocLock lock(db);
        db->undoController()->setRecording(false);
        KyDbObjectId layers[2];
        {
            KyDbObjectPointer<KyDbSymbolTable> table(db->layerTableId(), KyDb::kForWrite);
            for (int i = 0; i < 2; ++i) {
                auto* record = new KyDbLayerTableRecord();
                record->setName(KyString::formatted(L"Layer%d", i));
                table->add(layers[i], record);
                record->close();
            }
        }
        KyDbObjectId modelId;
        {
            KyDbObjectPointer<KyDbSymbolTable> blocks(db->blockTableId(), KyDb::kForRead);
            blocks->getAt(KyDbStandardContent::kModelSpaceName, modelId);
        }
        KyDbObjectPointer<KyDbBlockTableRecord> model(modelId, KyDb::kForWrite);
        const bool mixed = shape == Shape::kMixed;
        drawing.objects.reserve(static_cast<size_t>(count));
        for (int i = 0; i < count; ++i) {
            const double x = i;
            KyDbEntity* entity = nullptr;
            if (mixed && i % 10 == 9) {
                entity = new KyDbCircle(KyGePoint3d(x, 0.0, 0.0), 0.5);
            } else {
                entity = new KyDbLine(KyGePoint3d(x, 0.0, 0.0), KyGePoint3d(x, 10.0, 0.0));
            }
            KyDbObjectId id;
            model->appendKyDbEntity(id, entity);
            entity->setLayer(layers[mixed ? i % 2 : 0]);
            entity->setColorIndex(static_cast<unsigned short>(mixed ? 1 + i % 3 : 1));
            entity->setLinetype(mixed && i % 4 >= 2 ? KyDbStandardContent::kByLayer
                                                    : KyDbStandardContent::kContinuous);
            entity->setLineWeight(mixed && i % 5 == 0 ? KyDb::kLnWt050 : KyDb::kLnWt025);
            entity->close();
            drawing.objects.push_back(id);
        }
        model.close();
        db->undoController()->setRecording(true);
        return drawing;
    }

    KyRefHost m_host;
    std::map<int, Drawing> m_drawings;
    std::map<std::pair<int, Shape>, SelectionDrawing> m_selectionDrawings;
};

class Told : public KyDiCollectionReactor {
public:
    void itemsModified(const KyDiItemArray& items) override { modified += items.length(); }
    void itemsChanged(const KyDiItemArray& items, const KyDiItemArray&) override {
        added += items.length();
    }
    void collectionReset() override { ++resets; }
    int modified = 0;
    int added = 0;
    int resets = 0;
};

// The layer command that changes the colour of one layer of the drawing of
// `count` layers, by its literal name, to another colour each time.
inline KyString colorCommand(int count) {
    static std::map<int, int> s_commands;
    return KyString::formatted(L"'_.-LAYER\n_Color\n%d\n=L%d\n\n", 1 + s_commands[count]++ % 2,
                               count / 2);
}

}  // namespace kybench
