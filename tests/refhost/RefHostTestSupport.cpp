#include "RefHostTestSupport.h"

#include "db/KyAxDocLock.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbUndoController.h"

namespace refhost {

std::string utf8(const wchar_t* text) {
    return KyString(text).utf8();
}

Lines utf8(const std::vector<KyString>& texts) {
    Lines lines;
    for (const KyString& text : texts) {
        lines.push_back(text.utf8());
    }
    return lines;
}

namespace {
std::string flag(bool value) {
    return value ? "true" : "false";
}
}  // namespace

void EventSpy::name(KyDiDocument document, std::string label) {
    m_names.emplace_back(document, std::move(label));
}

std::string EventSpy::documentText(KyDiDocument document) const {
    for (const auto& [known, label] : m_names) {
        if (known == document) {
            return label;
        }
    }
    return std::to_string(document);
}

Lines EventSpy::take() {
    Lines lines = std::move(m_lines);
    m_lines.clear();
    return lines;
}

void ObjectSpy::goodbye(const KyDbObject* object) {
    m_spy.add("goodbye " + utf8(object->isA()->name()));
}

void ObjectSpy::erased(const KyDbObject* object, bool erasing) {
    m_spy.add("erased " + utf8(object->isA()->name()) + " " + flag(erasing));
}

RefHostTest::RefHostTest() : RefHostTest(testOptions()) {}

RefHostTest::RefHostTest(const KyRefHostOptions& options)
    : host(std::make_unique<KyRefHost>(options)) {
    host->documents().newDocument();
    host->addReactor(&spy);
}

RefHostTest::~RefHostTest() {
    if (host != nullptr) {
        host->removeReactor(&spy);
        host.reset();
    }
}

KyRefHostOptions RefHostTest::testOptions() {
    KyRefHostOptions options;
    options.manualClock = true;
    return options;
}

void RefHostTest::run(const wchar_t* text) {
    editor().sendCommand(text, false, false, true);
    host->idle();
}

Lines RefHostTest::takeLog() {
    return utf8(host->commandLine().takeLines());
}

short RefHostTest::getShort(const wchar_t* name) const {
    resbuf value{};
    EXPECT_EQ(editor().getVar(name, &value), KYRT_NORM) << utf8(name);
    EXPECT_EQ(value.restype, KYRB_SHORT) << utf8(name);
    return value.resval.rint;
}

std::string RefHostTest::getString(const wchar_t* name) const {
    resbuf value{};
    EXPECT_EQ(editor().getVar(name, &value), KYRT_NORM) << utf8(name);
    if (value.restype != KYRB_STRING) {
        ADD_FAILURE() << utf8(name) << " is no text";
        return std::string();
    }
    const std::string text = utf8(value.resval.rstring);
    kyutDelString(value.resval.rstring);
    return text;
}

int RefHostTest::getVarStatus(const wchar_t* name) const {
    resbuf* value = kyutNewRb(KYRB_NONE);
    const int status = editor().getVar(name, value);
    kyutRelRb(value);
    return status;
}

KyDbObjectId RefHostTest::addLayer(const wchar_t* name, bool locked, bool frozen) {
    KyAxDocLock lock(db());
    db()->undoController()->setRecording(false);
    KyDbObjectId id;
    {
        KyDbObjectPointer<KyDbSymbolTable> layers(db()->layerTableId(), KyDb::kForWrite);
        auto* layer = new KyDbLayerTableRecord();
        layer->setName(name);
        layer->setIsLocked(locked);
        layer->setIsFrozen(frozen);
        EXPECT_EQ(layers->add(id, layer), Kyro::eOk);
        layer->close();
    }
    db()->undoController()->setRecording(true);
    return id;
}

KyDbObjectId RefHostTest::addEntity(const wchar_t* layer) {
    KyAxDocLock lock(db());
    db()->undoController()->setRecording(false);
    KyDbObjectId id;
    {
        KyDbObjectId modelSpace;
        KyDbObjectId layerId;
        {
            KyDbObjectPointer<KyDbSymbolTable> blocks(db()->blockTableId(), KyDb::kForRead);
            blocks->getAt(KyDbStandardContent::kModelSpaceName, modelSpace);
            KyDbObjectPointer<KyDbSymbolTable> layers(db()->layerTableId(), KyDb::kForRead);
            layers->getAt(layer, layerId);
        }
        KyDbObjectPointer<KyDbBlockTableRecord> block(modelSpace, KyDb::kForWrite);
        auto* entity = new KyDbEntity();
        EXPECT_EQ(block->appendKyDbEntity(id, entity), Kyro::eOk);
        entity->setLayer(layerId);
        entity->close();
    }
    db()->undoController()->setRecording(true);
    return id;
}

std::wstring RefHostTest::handleOf(KyDbObjectId id) {
    return KyDbHandle(id.handle()).text().kwszPtr();
}

}  // namespace refhost
