// Open documents: the order of the events when one closes, switching between
// two, the handles and lookups of the document manager, and opening and
// saving through the drawing reader and writer.
#include <algorithm>

#include "KyRefDrawingIo.h"
#include "RefHostTestSupport.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"

namespace refhost {
namespace {

// Notes at each closing event what the document manager answers then.
class CloseProbe : public EventSpy {
public:
    explicit CloseProbe(KyRefDocumentManager& documents) : m_documents(documents) {}
    void documentToBeDestroyed(KyDiDocument document) override {
        EventSpy::documentToBeDestroyed(document);
        m_closing = document;
        probe();
    }
    void documentDestroyed() override {
        EventSpy::documentDestroyed();
        probe();
    }
    void documentDestructionDone() override {
        EventSpy::documentDestructionDone();
        probe();
    }

private:
    void probe() {
        const KyDiDocument current = m_documents.currentDocument();
        add(std::string("  current ") +
            (current == m_closing         ? "closing"
             : current == kKyDiNoDocument ? "none"
                                          : "other") +
            ", its database " + (m_documents.databaseOf(m_closing) != nullptr ? "there" : "gone"));
    }

    KyRefDocumentManager& m_documents;
    KyDiDocument m_closing = kKyDiNoDocument;
};

class DocumentManagerTest : public RefHostTest {
protected:
    KyRefDocumentManager& documents() { return host->documents(); }
};

TEST_F(DocumentManagerTest, ClosingTellsThreeEventsInOrderAndTheDatabaseGoesBetweenTheFirstTwo) {
    const KyDbObjectId entity = addEntity();
    CloseProbe probe(documents());
    probe.name(documents().currentDocument(), "Drawing1");
    host->addReactor(&probe);
    ObjectSpy objectSpy(probe);
    {
        KyDbObjectPointer<KyDbObject> object(entity, KyDb::kForNotify);
        object->addReactor(&objectSpy);
    }
    EXPECT_TRUE(documents().closeDocument(documents().current()));
    host->removeReactor(&probe);

    EXPECT_EQ(
        probe.take(),
        (Lines{"documentToBeDestroyed Drawing1", "  current closing, its database there",
               "goodbye KyDbEntity", "documentDestroyed", "  current closing, its database gone",
               "documentDestructionDone", "  current none, its database gone"}));
    EXPECT_FALSE(entity.isValid());
    EXPECT_EQ(documents().documentCount(), 0);
    EXPECT_EQ(documents().workingDatabase(), nullptr);
    EXPECT_FALSE(documents().closeDocument(nullptr));
}

TEST_F(DocumentManagerTest, ClosingTheCurrentOfTwoBringsTheOtherInFront) {
    KyRefDocument* first = documents().current();
    KyRefDocument* second = documents().newDocument();
    spy.name(first->handle(), "Drawing1");
    spy.name(second->handle(), "Drawing2");
    spy.take();
    documents().closeDocument(second);
    EXPECT_EQ(documents().current(), first);
    EXPECT_EQ(documents().workingDatabase(), first->database());
    EXPECT_EQ(spy.take(), (Lines{"documentToBeDestroyed Drawing2", "documentDestroyed",
                                 "documentDestructionDone", "refreshNeeded true"}));
}

TEST_F(DocumentManagerTest, SwitchingMovesTheWorkingDatabaseAndAsksForARefresh) {
    KyRefDocument* first = documents().current();
    KyRefDocument* second = documents().newDocument();
    EXPECT_EQ(documents().workingDatabase(), second->database());
    EXPECT_EQ(kydbHostApplicationServices()->workingDatabase(), second->database());
    EXPECT_EQ(spy.take(), (Lines{"refreshNeeded true"}));

    EXPECT_TRUE(documents().makeCurrent(first));
    EXPECT_EQ(documents().currentDocument(), first->handle());
    EXPECT_EQ(documents().workingDatabase(), first->database());
    EXPECT_EQ(spy.take(), (Lines{"refreshNeeded true"}));
    EXPECT_TRUE(documents().makeCurrent(first));
    EXPECT_TRUE(spy.lines().empty()) << "no switch, no refresh";
}

TEST_F(DocumentManagerTest, HandlesAreNeverNoneOrUnboundAndNeverUsedTwice) {
    KyRefDocument* first = documents().current();
    KyRefDocument* second = documents().newDocument();
    const KyDiDocument gone = second->handle();
    documents().closeDocument(second);
    KyRefDocument* third = documents().newDocument();
    for (const KyDiDocument handle : {first->handle(), gone, third->handle()}) {
        EXPECT_NE(handle, kKyDiNoDocument);
        EXPECT_NE(handle, kKyDiUnboundDocument);
    }
    EXPECT_NE(third->handle(), gone);
    EXPECT_NE(third->handle(), first->handle());
    EXPECT_EQ(documents().databaseOf(gone), nullptr);
    EXPECT_EQ(documents().databaseOf(12345), nullptr);
    EXPECT_EQ(documents().documentName(gone), L"");
}

TEST_F(DocumentManagerTest, DocumentsAreFoundByIndexDatabaseAndHandle) {
    KyRefDocument* first = documents().current();
    KyRefDocument* second = documents().newDocument();
    EXPECT_EQ(documents().documentCount(), 2);
    EXPECT_EQ(documents().document(0), first->handle());
    EXPECT_EQ(documents().document(1), second->handle());
    EXPECT_EQ(documents().document(2), kKyDiNoDocument);
    EXPECT_EQ(documents().documentOf(second->database()), second->handle());
    EXPECT_EQ(documents().documentOf(nullptr), kKyDiNoDocument);
    KyDbDatabase loose;
    EXPECT_EQ(documents().documentOf(&loose), kKyDiNoDocument);
    EXPECT_EQ(documents().databaseOf(first->handle()), first->database());
    EXPECT_EQ(documents().documentName(first->handle()), L"Drawing1.kyd");
    EXPECT_EQ(documents().documentName(second->handle()), L"Drawing2.kyd");
}

TEST_F(DocumentManagerTest, ADocumentsDrawingTakesWritesOnlyUnderItsLock) {
    KyDbSymbolTable* layers = nullptr;
    EXPECT_EQ(db()->getSymbolTable(layers, db()->layerTableId(), KyDb::kForWrite),
              Kyro::eLockViolation);
    KyAxDocLock lock(db());
    ASSERT_EQ(db()->getSymbolTable(layers, db()->layerTableId(), KyDb::kForWrite), Kyro::eOk);
    layers->close();
}

TEST_F(DocumentManagerTest, QuestionsGoToTheCurrentDocumentOnly) {
    KyRefDocument* first = documents().current();
    KyRefDocument* second = documents().newDocument();
    EXPECT_FALSE(documents().isDocumentQuiescent(second->handle()));
    EXPECT_TRUE(documents().isDocumentQuiescent(first->handle()));
    EXPECT_TRUE(documents().isDocumentQuiescent(12345));
    documents().setPromptsAllowed(false);
    EXPECT_TRUE(documents().isDocumentQuiescent(second->handle()));
}

TEST_F(DocumentManagerTest, ALongTransactionIsAnsweredForItsDocument) {
    KyDbObjectId id;
    documents().longTransactionId(id, documents().currentDocument());
    EXPECT_TRUE(id.isNull());
    const KyDbObjectId layer = addLayer(L"Walls");
    documents().current()->setLongTransactionId(layer);
    documents().longTransactionId(id, documents().currentDocument());
    EXPECT_EQ(id, layer);
    documents().longTransactionId(id, 12345);
    EXPECT_TRUE(id.isNull());
}

TEST_F(DocumentManagerTest, WithoutADrawingReaderOpeningAndSavingSayWhy) {
    KyRefDrawingIo::registerInstance(nullptr);
    KyString error;
    EXPECT_EQ(documents().openDocument(L"/tmp/plan.kyd", error), nullptr);
    EXPECT_EQ(error, L"Drawings can't be opened: no drawing file reader is installed.");
    EXPECT_FALSE(documents().saveDocument(documents().current(), L"", error));
    EXPECT_EQ(error, L"The drawing has no file yet: name one to save it.");
    EXPECT_FALSE(documents().saveDocument(documents().current(), L"/tmp/plan.kyd", error));
    EXPECT_EQ(error, L"Drawings can't be saved: no drawing file writer is installed.");
    EXPECT_EQ(documents().documentCount(), 1);
}

// Reads a drawing with one layer named after the file; a file named "bad"
// can't be read. Writing notes the path.
class FakeDrawingIo : public KyRefDrawingIo {
public:
    std::unique_ptr<KyDbDatabase> read(const wchar_t* path, KyString& error) override {
        if (KyString(path).find(L"bad") >= 0) {
            error = L"layers[0].color: expected an integer";
            return nullptr;
        }
        auto database = std::make_unique<KyDbDatabase>(true);
        KyDbObjectPointer<KyDbSymbolTable> layers(database->layerTableId(), KyDb::kForWrite);
        auto* layer = new KyDbLayerTableRecord();
        layer->setName(L"FromFile");
        layers->add(layer);
        layer->close();
        return database;
    }
    bool write(KyDbDatabase*, const wchar_t* path, KyString&) override {
        written.emplace_back(path);
        return true;
    }
    std::vector<KyString> written;
};

TEST_F(DocumentManagerTest, OpeningAndSavingGoThroughTheDrawingReaderAndWriter) {
    FakeDrawingIo io;
    documents().setDrawingIo(&io);
    KyString error;
    KyRefDocument* plan = documents().openDocument(L"/drawings/plan.kyd", error);
    ASSERT_NE(plan, nullptr);
    EXPECT_EQ(documents().current(), plan);
    EXPECT_EQ(plan->name(), L"plan.kyd");
    EXPECT_TRUE(plan->database()->isLockRequired());
    EXPECT_FALSE(plan->isModified());
    run(L"CLAYER\nFromFile\n");
    EXPECT_TRUE(plan->isModified());
    run(L"U\nU\n");
    EXPECT_EQ(getString(L"CLAYER"), "0") << "reading the file is nothing to take back";
    EXPECT_EQ(takeLog().back(), "Everything has been undone.");

    EXPECT_TRUE(documents().saveDocument(plan, L"", error));
    spy.take();
    EXPECT_TRUE(documents().saveDocument(plan, L"/drawings/copy.kyd", error));
    const Lines saved = spy.take();
    EXPECT_NE(std::find(saved.begin(), saved.end(), "sysVarChanged DRAWINGNAME true"), saved.end())
        << "a new name is told as a change of DRAWINGNAME";
    EXPECT_EQ(io.written, (std::vector<KyString>{L"/drawings/plan.kyd", L"/drawings/copy.kyd"}));
    EXPECT_EQ(plan->name(), L"copy.kyd");
    EXPECT_FALSE(plan->isModified());

    EXPECT_EQ(documents().openDocument(L"/drawings/bad.kyd", error), nullptr);
    EXPECT_EQ(error, L"layers[0].color: expected an integer");
    EXPECT_EQ(documents().documentCount(), 2);
}

TEST_F(DocumentManagerTest, TheRegisteredReaderServesHostsWithoutOneOfTheirOwn) {
    FakeDrawingIo io;
    KyRefDrawingIo::registerInstance(&io);
    KyString error;
    EXPECT_NE(documents().openDocument(L"/drawings/plan.kyd", error), nullptr);
    KyRefDrawingIo::registerInstance(nullptr);
    EXPECT_EQ(documents().openDocument(L"/drawings/plan.kyd", error), nullptr);
}

TEST_F(DocumentManagerTest, TheHostClosesItsDocumentsWithTheirEventsWhenItGoes) {
    documents().newDocument();
    spy.take();
    host.reset();
    const auto count = [this](const std::string& event) {
        return std::count_if(spy.lines().begin(), spy.lines().end(),
                             [&event](const auto& line) { return line.rfind(event, 0) == 0; });
    };
    EXPECT_EQ(count("documentToBeDestroyed"), 2);
    EXPECT_EQ(count("documentDestroyed"), 2);
    EXPECT_EQ(count("documentDestructionDone"), 2);
}

}  // namespace
}  // namespace refhost
