// The drawings of the layer benchmarks: the host and the layer started once
// for the process, one drawing for each number of layers, each with a paper
// space viewport that freezes one layer; and the reactor that counts what a
// collection told.
#pragma once

#include <map>
#include <vector>

#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbUndoController.h"
#include "db/KyDbViewport.h"
#include "kydi/KyDiCollectionReactor.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"

namespace kybench {

struct Drawing {
    KyRefDocument* document = nullptr;
    std::vector<KyDbObjectId> layers;
    KyDbObjectId viewport;
};

// The host and the layer, started once for the process: one drawing for each
// number of layers, each with a paper space viewport that freezes one layer.
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

    KyRefHost m_host;
    std::map<int, Drawing> m_drawings;
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
