#include "base/resbuf.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/KyString.h"

namespace {

resbuf* stringRb(const wchar_t* text) {
    resbuf* rb = kyutNewRb(KYRB_STRING);
    kyutNewString(text, rb->resval.rstring);
    return rb;
}

resbuf* realRb(short code, double value) {
    resbuf* rb = kyutNewRb(code);
    rb->resval.rreal = value;
    return rb;
}

resbuf* pointRb(short code, double x, double y, double z) {
    resbuf* rb = kyutNewRb(code);
    rb->resval.rpoint[0] = x;
    rb->resval.rpoint[1] = y;
    rb->resval.rpoint[2] = z;
    return rb;
}

// Owns records for the length of a test.
struct Records {
    ~Records() {
        for (resbuf* rb : all) {
            kyutRelRb(rb);
        }
    }
    resbuf* operator()(resbuf* rb) {
        all.push_back(rb);
        return rb;
    }
    std::vector<resbuf*> all;
};

TEST(BaseResbuf, ReleasingAChainFreesEveryRecordAndItsString) {
    // Leaks would fail the test under the leak checker.
    resbuf* head = stringRb(L"CLAYER");
    head->rbnext = realRb(KYRB_REAL, 2.5);
    head->rbnext->rbnext = stringRb(L"Walls");
    head->rbnext->rbnext->rbnext = kyutNewRb(KYRB_STRING);  // a string record without a string
    kyutRelRb(head);
    kyutRelRb(nullptr);
}

TEST(BaseResbuf, CopiesAreDeepAndStandAlone) {
    resbuf* original = stringRb(L"Walls");
    original->rbnext = kyutNewRb(KYRB_SHORT);
    resbuf* copy = kyutCopyRb(original);
    ASSERT_NE(nullptr, copy);
    EXPECT_EQ(nullptr, copy->rbnext);
    EXPECT_NE(original->resval.rstring, copy->resval.rstring);
    kyutUpdString(L"Doors", original->resval.rstring);
    EXPECT_STREQ(L"Walls", copy->resval.rstring);
    kyutRelRb(original);
    EXPECT_STREQ(L"Walls", copy->resval.rstring);
    kyutRelRb(copy);

    resbuf* point = pointRb(KYRB_3DPOINT, 1, 2, 3);
    resbuf* pointCopy = kyutCopyRb(point);
    EXPECT_TRUE(kyutRbEqual(point, pointCopy));
    kyutRelRb(point);
    kyutRelRb(pointCopy);
    EXPECT_EQ(nullptr, kyutCopyRb(nullptr));
}

TEST(BaseResbuf, EqualityComparesTheValueOfEachCode) {
    Records r;
    for (short code : {KYRB_REAL, KYRB_ANGLE, KYRB_ORIENT}) {
        EXPECT_TRUE(kyutRbEqual(r(realRb(code, 0.5)), r(realRb(code, 0.5))));
        EXPECT_FALSE(kyutRbEqual(r(realRb(code, 0.5)), r(realRb(code, 0.25))));
    }
    // A 2D point compares two coordinates, a 3D point three.
    EXPECT_TRUE(kyutRbEqual(r(pointRb(KYRB_POINT, 1, 2, 3)), r(pointRb(KYRB_POINT, 1, 2, 9))));
    EXPECT_FALSE(kyutRbEqual(r(pointRb(KYRB_POINT, 1, 2, 3)), r(pointRb(KYRB_POINT, 1, 5, 3))));
    EXPECT_TRUE(kyutRbEqual(r(pointRb(KYRB_3DPOINT, 1, 2, 3)), r(pointRb(KYRB_3DPOINT, 1, 2, 3))));
    EXPECT_FALSE(kyutRbEqual(r(pointRb(KYRB_3DPOINT, 1, 2, 3)), r(pointRb(KYRB_3DPOINT, 1, 2, 9))));

    resbuf* shortA = r(kyutNewRb(KYRB_SHORT));
    resbuf* shortB = r(kyutNewRb(KYRB_SHORT));
    shortA->resval.rint = 7;
    shortB->resval.rint = 7;
    EXPECT_TRUE(kyutRbEqual(shortA, shortB));
    shortB->resval.rint = -7;
    EXPECT_FALSE(kyutRbEqual(shortA, shortB));

    resbuf* longA = r(kyutNewRb(KYRB_LONG));
    resbuf* longB = r(kyutNewRb(KYRB_LONG));
    longA->resval.rlong = 100000;
    longB->resval.rlong = 100000;
    EXPECT_TRUE(kyutRbEqual(longA, longB));
    longB->resval.rlong = 100001;
    EXPECT_FALSE(kyutRbEqual(longA, longB));

    EXPECT_TRUE(kyutRbEqual(r(stringRb(L"Walls")), r(stringRb(L"Walls"))));
    EXPECT_FALSE(kyutRbEqual(r(stringRb(L"Walls")), r(stringRb(L"WALLS"))));
    EXPECT_FALSE(kyutRbEqual(r(stringRb(L"Walls")), r(kyutNewRb(KYRB_STRING))));
    EXPECT_TRUE(kyutRbEqual(r(kyutNewRb(KYRB_STRING)), r(kyutNewRb(KYRB_STRING))));

    EXPECT_TRUE(kyutRbEqual(r(kyutNewRb(KYRB_NONE)), r(kyutNewRb(KYRB_NONE))));
}

TEST(BaseResbuf, RecordsOfDifferentCodesOrMissingRecordsDiffer) {
    Records r;
    EXPECT_FALSE(kyutRbEqual(r(realRb(KYRB_REAL, 1.0)), r(realRb(KYRB_ANGLE, 1.0))));
    EXPECT_FALSE(kyutRbEqual(r(kyutNewRb(KYRB_NONE)), r(kyutNewRb(KYRB_SHORT))));
    EXPECT_FALSE(kyutRbEqual(r(kyutNewRb(KYRB_NONE)), nullptr));
    EXPECT_TRUE(kyutRbEqual(nullptr, nullptr));
}

}  // namespace
