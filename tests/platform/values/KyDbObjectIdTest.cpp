// Object ids: an id is the address of its stub, safe to ask when stale, and
// reads as its handle.
#include "db/KyDbObjectId.h"

#include <gtest/gtest.h>

#include "rx/KyRxValue.h"

namespace {

TEST(KyDbObjectIdValue, AnIdIsItsStubAndReadsAsItsHandle) {
    KyDbStub stub;
    stub.handle = 0x1F;
    KyDbStub other;
    other.handle = 0xABC;
    const KyDbObjectId id(&stub);
    const KyDbObjectId otherId(&other);

    EXPECT_TRUE(KyDbObjectId().isNull());
    EXPECT_EQ(KyDbObjectId::kNull, KyDbObjectId());
    EXPECT_FALSE(id.isNull());
    EXPECT_EQ(0x1Fu, id.handle());
    EXPECT_EQ(KyDbObjectId(&stub), id);
    EXPECT_NE(otherId, id);
    EXPECT_NE(id < otherId, otherId < id);

    EXPECT_EQ(KyString(L"1F"), KyRxValue(id).text());
    EXPECT_EQ(KyString(L"ABC"), KyRxValue(otherId).text());
    EXPECT_EQ(KyString(L"0"), KyRxValue(KyDbObjectId()).text());
    EXPECT_EQ(KyRxValue(id), KyRxValue(KyDbObjectId(&stub)));
    EXPECT_NE(KyRxValue(id), KyRxValue(otherId));
}

TEST(KyDbObjectIdValue, AStaleIdIsSafeToAsk) {
    KyDbStub stub;
    stub.handle = 0x2A;
    const KyDbObjectId id(&stub);
    EXPECT_FALSE(id.isValid());  // no database
    EXPECT_FALSE(id.isErased());
    EXPECT_EQ(nullptr, id.database());

    stub.flags |= KyDbStub::kErased;
    EXPECT_TRUE(id.isErased());
    EXPECT_EQ(0x2Au, id.handle());

    const KyDbObjectId null;
    EXPECT_FALSE(null.isValid());
    EXPECT_FALSE(null.isErased());
    EXPECT_EQ(nullptr, null.objectClass());
    EXPECT_EQ(0u, null.handle());
}

}  // namespace
