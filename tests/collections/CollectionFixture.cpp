#include "collections/CollectionFixture.h"

#include "KyRefDocument.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbRenderSettings.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbUCSTableRecord.h"
#include "db/KyDbUndoController.h"
#include "db/KyDbViewTableRecord.h"
#include "db/KyDbViewportTableRecord.h"

namespace kytest {

namespace {

// A document lock and an undo group, as a command has them.
class Edit {
public:
    explicit Edit(KyDbDatabase* database) : m_lock(database), m_database(database) {
        m_database->undoController()->beginUndoGroup();
    }
    ~Edit() { m_database->undoController()->endUndoGroup(); }
    Edit(const Edit&) = delete;
    Edit& operator=(const Edit&) = delete;

private:
    KyAxDocLock m_lock;
    KyDbDatabase* m_database;
};

// A new record of this name; `configure` sets the rest before it is added.
template <typename Record, typename Configure = void (*)(Record&)>
KyDbObjectId addRecord(
    KyDbDatabase* db, KyDbObjectId tableId, const wchar_t* name,
    Configure configure = [](Record&) {}) {
    const Edit edit(db);
    KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForWrite);
    auto* record = new Record();
    record->setName(name);
    configure(*record);
    KyDbObjectId id;
    EXPECT_EQ(table->add(id, record), Kyro::eOk);
    record->close();
    return id;
}

// A new named object under the key `name` of a dictionary.
template <typename Entry>
KyDbObjectId addEntry(KyDbDatabase* db, KyDbObjectId dictionaryId, const wchar_t* name) {
    const Edit edit(db);
    KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForWrite);
    auto* entry = new Entry();
    entry->setName(name);
    KyDbObjectId id;
    EXPECT_EQ(dictionary->setAt(name, entry, id), Kyro::eOk);
    entry->close();
    return id;
}

}  // namespace

KyDbDatabase* CollectionFixture::db() {
    return host.documents().current()->database();
}

KyDbObjectId CollectionFixture::addLinetype(const wchar_t* name) {
    return addRecord<KyDbLinetypeTableRecord>(db(), db()->linetypeTableId(), name);
}

KyDbObjectId CollectionFixture::addTextStyle(const wchar_t* name) {
    return addRecord<KyDbTextStyleTableRecord>(db(), db()->textStyleTableId(), name);
}

KyDbObjectId CollectionFixture::addView(const wchar_t* name, const KyGePoint3d& center,
                                        bool paperSpace) {
    return addRecord<KyDbViewTableRecord>(db(), db()->viewTableId(), name,
                                          [&](KyDbViewTableRecord& view) {
                                              view.setCenterPoint(center);
                                              view.setIsPaperspaceView(paperSpace);
                                          });
}

KyDbObjectId CollectionFixture::addViewport(const wchar_t* name) {
    return addRecord<KyDbViewportTableRecord>(db(), db()->viewportTableId(), name);
}

KyDbObjectId CollectionFixture::addUcs(const wchar_t* name) {
    return addRecord<KyDbUCSTableRecord>(db(), db()->UCSTableId(), name);
}

KyDbObjectId CollectionFixture::addMaterial(const wchar_t* name) {
    return addEntry<KyDbMaterial>(db(), db()->materialDictionaryId(), name);
}

KyDbObjectId CollectionFixture::addRenderPreset(const wchar_t* name) {
    return addEntry<KyDbRenderSettings>(db(), db()->renderSettingsDictionaryId(), name);
}

void CollectionFixture::rename(KyDbObjectId id, const wchar_t* name) {
    const Edit edit(id.database());
    KyDbObjectPointer<KyDbSymbolTableRecord> record(id, KyDb::kForWrite);
    ASSERT_EQ(record->setName(name), Kyro::eOk);
}

void CollectionFixture::erase(KyDbObjectId id, bool erasing) {
    const Edit edit(id.database());
    KyDbObjectPointer<KyDbObject> object(id, KyDb::kForWrite, true);
    ASSERT_EQ(object->erase(erasing), Kyro::eOk);
}

void CollectionFixture::describe(KyDbObjectId linetype, const wchar_t* description) {
    const Edit edit(linetype.database());
    KyDbObjectPointer<KyDbLinetypeTableRecord> record(linetype, KyDb::kForWrite, true);
    ASSERT_EQ(record->setComments(description), Kyro::eOk);
}

KyDbObjectId CollectionFixture::recordOf(KyDbObjectId tableId, const wchar_t* name) {
    KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForRead);
    KyDbObjectId id;
    table->getAt(name, id);
    return id;
}

std::vector<std::wstring> CollectionFixture::sentWithFlags() {
    std::vector<std::wstring> texts;
    for (const KyRefEditor::SentCommand& sent : host.KyRefHost::editor()->takeSentCommands()) {
        texts.push_back(std::wstring(sent.text.kwszPtr()) + L" (" + (sent.flag1 ? L"1" : L"0") +
                        L" " + (sent.flag2 ? L"1" : L"0") + L" " + (sent.flag3 ? L"1" : L"0") +
                        L")");
    }
    return texts;
}

std::vector<std::string> CollectionFixture::names(KyDiObservableCollection* collection) {
    std::vector<std::string> result;
    const KyDiItemArray& items = collection->getItems();
    for (int i = 0; i < items.length(); ++i) {
        result.push_back(itemName(items[i]));
    }
    return result;
}

KyDiDynamicObject* CollectionFixture::item(KyDiObservableCollection* collection, const char* name) {
    const KyDiItemArray& items = collection->getItems();
    for (int i = 0; i < items.length(); ++i) {
        if (itemName(items[i]) == name) {
            return items[i];
        }
    }
    ADD_FAILURE() << "no item " << name;
    return nullptr;
}

}  // namespace kytest
