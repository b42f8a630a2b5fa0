// Drawing files: opening and saving a drawing of 10,000 layers and 100,000
// entities (lines, circles and texts on every layer) with the reader and
// writer of the reference host.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbCircle.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLine.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbText.h"
#include "db/KyDbUndoController.h"
#include "io/KyRefDrawingReader.h"
#include "io/KyRefDrawingWriter.h"

namespace {

constexpr int kLayers = 10000;
constexpr int kEntities = 100000;

// The text of the drawing, made once.
const std::string& drawingText() {
    static const std::string text = [] {
        KyDbDatabase db;
        db.undoController()->setRecording(false);
        KyArray<KyDbObjectId> layers;
        {
            KyDbObjectPointer<KyDbSymbolTable> table(db.layerTableId(), KyDb::kForWrite);
            for (int i = 0; i < kLayers; ++i) {
                auto* layer = new KyDbLayerTableRecord();
                layer->setName(KyString::formatted(L"Layer %05d", i));
                KyCmColor color;
                color.setColorIndex(static_cast<unsigned short>(1 + i % 255));
                layer->setColor(color);
                layer->setIsOff(i % 7 == 0);
                KyDbObjectId id;
                table->add(id, layer);
                layer->close();
                layers.append(id);
            }
        }
        KyDbObjectId modelId;
        {
            KyDbObjectPointer<KyDbSymbolTable> blocks(db.blockTableId(), KyDb::kForRead);
            blocks->getAt(L"*Model_Space", modelId);
        }
        KyDbObjectPointer<KyDbBlockTableRecord> model(modelId, KyDb::kForWrite);
        for (int i = 0; i < kEntities; ++i) {
            const double x = i % 1000;
            const double y = i / 1000;
            KyDbEntity* entity = nullptr;
            switch (i % 3) {
                case 0:
                    entity = new KyDbLine(KyGePoint3d(x, y, 0), KyGePoint3d(x + 0.5, y + 0.5, 0));
                    break;
                case 1:
                    entity = new KyDbCircle(KyGePoint3d(x, y, 0), 0.25);
                    break;
                default: {
                    auto* label = new KyDbText();
                    label->setPosition(KyGePoint3d(x, y, 0));
                    label->setTextString(KyString::formatted(L"T%d", i));
                    entity = label;
                }
            }
            entity->setLayer(layers[i % kLayers]);
            model->appendKyDbEntity(entity);
            entity->close();
        }
        model.close();
        return KyRefDrawingWriter::toText(&db);
    }();
    return text;
}

void BM_OpenDrawing(benchmark::State& state) {
    const std::string& text = drawingText();
    for (auto _ : state) {
        KyString error;
        std::unique_ptr<KyDbDatabase> db = KyRefDrawingReader::readText(text, error);
        if (db == nullptr) {
            state.SkipWithError(error.utf8().c_str());
            break;
        }
        benchmark::DoNotOptimize(db.get());
    }
    state.counters["layers"] = kLayers;
    state.counters["entities"] = kEntities;
    state.counters["megabytes"] = static_cast<double>(text.size()) / 1e6;
}
BENCHMARK(BM_OpenDrawing)->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_SaveDrawing(benchmark::State& state) {
    KyString error;
    const std::unique_ptr<KyDbDatabase> db = KyRefDrawingReader::readText(drawingText(), error);
    if (db == nullptr) {
        state.SkipWithError(error.utf8().c_str());
        return;
    }
    for (auto _ : state) {
        const std::string text = KyRefDrawingWriter::toText(db.get());
        benchmark::DoNotOptimize(text.data());
    }
    state.counters["layers"] = kLayers;
    state.counters["entities"] = kEntities;
}
BENCHMARK(BM_SaveDrawing)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
