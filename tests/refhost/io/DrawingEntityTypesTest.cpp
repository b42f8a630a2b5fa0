// The type words of entities: each class the reader makes from a word
// answers that word as its dxfName, the words kept whole have no class, and
// the classes a drawing file has no word for answer none.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "db/KyDbAttribute.h"
#include "db/KyDbEntity.h"
#include "db/KyDbEntityPart.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbRegion.h"
#include "db/KyDbUnknownEntity.h"
#include "io/KyRefEntityRows.h"
#include "io/KyRefJson.h"
#include "rx/KyRxClass.h"

namespace {

TEST(DrawingEntityTypes, EveryClassTheReaderMakesFromAWordAnswersThatWord) {
    // The words as the drawing format lists them.
    const std::vector<std::string> modelled = {
        "LINE",   "CIRCLE",    "ARC",    "ELLIPSE", "POINT",    "POLYLINE", "TEXT",  "MTEXT",
        "INSERT", "DIMENSION", "LEADER", "MLEADER", "VIEWPORT", "HATCH",    "TABLE", "VIEWCALLOUT"};
    for (const std::string& word : modelled) {
        const KyRefEntityRow* row = KyRefEntityRows::ofType(word);
        ASSERT_NE(row, nullptr) << word;
        ASSERT_NE(row->entityClass, nullptr) << word;
        EXPECT_EQ(kyrefUtf8(row->entityClass()->dxfName()), word);
        EXPECT_EQ(row->type(), word);
    }
    for (const char* kept : {"IMAGE", "POINTCLOUD"}) {
        const KyRefEntityRow* row = KyRefEntityRows::ofType(kept);
        ASSERT_NE(row, nullptr) << kept;
        EXPECT_EQ(row->entityClass, nullptr) << kept;
        EXPECT_EQ(row->type(), kept);
    }
    EXPECT_EQ(KyRefEntityRows::ofType("line"), nullptr) << "words are upper case";
    EXPECT_EQ(KyRefEntityRows::ofType("SOLID"), nullptr);
    EXPECT_EQ(KyRefEntityRows::rows().size(), modelled.size() + 2);
}

TEST(DrawingEntityTypes, ClassesWithoutAWordAnswerNone) {
    EXPECT_STREQ(KyDbAttribute::desc()->dxfName(), L"ATTRIB");
    for (const KyRxClass* cls : {KyDbEntity::desc(), KyDbUnknownEntity::desc(), KyDbRegion::desc(),
                                 KyDbEntityPart::desc(), KyDbLayerTableRecord::desc()}) {
        EXPECT_STREQ(cls->dxfName(), L"") << kyrefUtf8(cls->name());
    }
}

}  // namespace
