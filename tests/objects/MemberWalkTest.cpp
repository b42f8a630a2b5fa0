// Every class of the drawing database, as an item: an object of the sample
// drawing (or a fresh one for a class the sample lacks) lists its members
// through its item, and every member that the host can read reads through
// its wrapper to the host's value, turned into a data item as a palette
// gets it.
#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "KyRefDocument.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbEntity.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableRecord.h"
#include "kydi/KyDiExpression.h"
#include "kydi/KyDiFunctions.h"
#include "objects/ItemFixture.h"
#include "reflection/PropertyWrapping.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxPropertyExpressionPE.h"

namespace {

class MemberWalk : public kytest::ItemFixture {
protected:
    MemberWalk() : ItemFixture(onManualClock(), Drawing::kNone) {}

    void SetUp() override {
        ItemFixture::SetUp();
        KyString error;
        ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error),
                  nullptr)
            << error.utf8();
    }

    // The first object of each class in the drawing, by handle.
    std::map<const KyRxClass*, KyDbObjectId> objectsByClass() {
        std::map<const KyRxClass*, KyDbObjectId> found;
        const std::uint64_t seed = db()->handseed().value();
        for (std::uint64_t handle = 1; handle < seed; ++handle) {
            KyDbObjectId id;
            if (db()->getKyDbObjectId(id, KyDbHandle(handle)) == Kyro::eOk && !id.isErased()) {
                found.emplace(id.objectClass(), id);
            }
        }
        return found;
    }

    // A fresh object of `cls` in the drawing: an entity in model space, any
    // other object owned by the database. Null for a class that can't stand
    // alone (a table or a record of one).
    KyDbObjectId addFresh(const KyRxClass* cls) {
        if (cls->isDerivedFrom(KyDbSymbolTable::desc()) ||
            cls->isDerivedFrom(KyDbSymbolTableRecord::desc())) {
            return KyDbObjectId();
        }
        auto* object = kyrxCast<KyDbObject>(cls->create());
        if (object == nullptr) {
            return KyDbObjectId();
        }
        const KyAxDocLock lock(db());
        KyDbObjectId id;
        if (auto* entity = kyrxCast<KyDbEntity>(static_cast<KyRxObject*>(object))) {
            KyDbObjectPointer<KyDbBlockTableRecord> space(content().modelSpaceId(),
                                                          KyDb::kForWrite);
            EXPECT_EQ(space->appendKyDbEntity(id, entity), Kyro::eOk) << cls->name();
        } else {
            EXPECT_EQ(db()->addKyDbObject(id, object), Kyro::eOk) << cls->name();
        }
        object->close();
        return id;
    }

    // What a palette is to get for the host's value of `member` on `object`.
    static KyRxValue expected(const KyRxObject* object, const KyRxMember* member,
                              const KyRxValue& hostValue) {
        KyRxValue value = hostValue;
        const auto* formulas =
            kyrxCast<KyRxPropertyExpressionPE>(object->queryX(KyRxPropertyExpressionPE::desc()));
        if (formulas != nullptr && formulas->isExpression(object, member)) {
            value = KyRxValue(KyDiExpression{hostValue, formulas->getExpression(object, member)});
        }
        KyDiConvertToDataItem(value);
        return value;
    }

    void walk(KyDbObjectId id, int& propertiesRead) {
        const KyRxClass* cls = id.objectClass();
        SCOPED_TRACE(KyString(cls->name()).utf8());
        KyDiDynamicObject* item = itemOf(id);
        const std::unique_ptr<KyRxMemberIterator> members(item->newMemberIterator());
        ASSERT_NE(members, nullptr);
        ASSERT_FALSE(members->done());
        for (; !members->done(); members->next()) {
            const KyRxMember* wrapper = members->current();
            const KyRxMember* host = PropertyWrapping::sourceMember(wrapper);
            ASSERT_NE(host, nullptr) << "every member is a wrapper: " << wrapper->name();
            EXPECT_STREQ(wrapper->name(), host->name());
            EXPECT_EQ(wrapper->localName(), host->localName());
            EXPECT_EQ(kyrxCast<KyRxPropertyBase>(wrapper)->isReadOnly(),
                      kyrxCast<KyRxPropertyBase>(host)->isReadOnly());
            const auto* property = kyrxCast<KyRxProperty>(host);
            if (property == nullptr) {
                continue;
            }
            KyRxValue hostValue;
            Kyro::ErrorStatus hostStatus = Kyro::eOk;
            KyRxValue want;
            {
                KyDbObjectPointer<KyDbObject> object(id, KyDb::kForRead);
                hostStatus = property->getValue(object.object(), hostValue);
                if (hostStatus == Kyro::eOk) {
                    want = expected(object.object(), host, hostValue);
                }
            }
            KyRxValue got;
            const Kyro::ErrorStatus status = kyrxCast<KyRxProperty>(wrapper)->getValue(item, got);
            EXPECT_EQ(status, hostStatus) << wrapper->name();
            if (status == Kyro::eOk && hostStatus == Kyro::eOk) {
                EXPECT_EQ(got, want)
                    << wrapper->name() << ": " << got.text().utf8() << " vs " << want.text().utf8();
                ++propertiesRead;
            }
        }
    }
};

TEST_F(MemberWalk, EveryClassListsItsMembersAndReadsThemAsTheHostGivesThem) {
    std::map<const KyRxClass*, KyDbObjectId> objects = objectsByClass();
    int classes = 0;
    int propertiesRead = 0;
    const std::unique_ptr<KyRxDictionaryIterator> all(kyrxClassDictionary()->newIterator());
    for (; !all->done(); all->next()) {
        const auto* cls = kyrxCast<KyRxClass>(all->object());
        if (cls == nullptr || !cls->isDerivedFrom(KyDbObject::desc())) {
            continue;
        }
        KyDbObjectId id = objects.contains(cls) ? objects[cls] : addFresh(cls);
        if (id.isNull()) {
            continue;
        }
        walk(id, propertiesRead);
        ++classes;
    }
    // The sample and the fresh objects cover the database's classes.
    EXPECT_GE(classes, 45);
    EXPECT_GT(propertiesRead, 400);
}

}  // namespace
