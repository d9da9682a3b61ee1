#include <gtest/gtest.h>

#include "quarn/Vector3D.h"
#include "quarn/ivec3.h"

namespace quarn::test {
namespace {

TEST(Vector3D, NormalizeScalesToLengthOne) {
    Vector3D vector(2, -3, 6);
    EXPECT_EQ(vector.mag(), 7);
    EXPECT_EQ(&vector.normalize(), &vector);
    EXPECT_EQ(vector.getX(), 2.0 / 7);
    EXPECT_EQ(vector.getY(), -3.0 / 7);
    EXPECT_EQ(vector.getZ(), 6.0 / 7);
}

TEST(Vector3D, DivisionByZeroChangesNothing) {
    Vector3D vector(1, 2, 3);
    vector /= 0.0;
    vector /= -0.0;
    EXPECT_EQ(vector.getZ(), 3);
    EXPECT_EQ(Vector3D().normalize().getX(), 0);
}

// Compares each cell with each other one: their order is that of the list.
TEST(Ivec3, OrdersByXThenYThenZ) {
    const ivec3 ascending[] = {{-5, 9, 9}, {1, -2, 3}, {1, 2, 3}, {1, 2, 4}, {1, 5, 0}, {2, 0, 0}};
    for (const ivec3& a : ascending) {
        for (const ivec3& b : ascending) {
            EXPECT_EQ(a < b, &a < &b);
            EXPECT_EQ(a <= b, &a <= &b);
            EXPECT_EQ(a > b, &a > &b);
            EXPECT_EQ(a >= b, &a >= &b);
            EXPECT_EQ(a == b, &a == &b);
            EXPECT_EQ(a != b, &a != &b);
        }
    }
}

}  // namespace
}  // namespace quarn::test
