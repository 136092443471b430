#include "PictureFile.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

namespace {

PixelMap Striped(int width, int height) {
    PixelMap picture(width, height, 0xFFFFFF);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            if ((x + y) % 5 == 0)
                picture.At(x, y) = 0x102030;
        }
    }
    return picture;
}

TEST(PictureFileTest, WhatIsSavedIsLoadedAgain) {
    const std::string path = "picture_file_test.bmp";
    PixelMap picture = Striped(301, 7);
    picture.At(300, 6) = 0xAB00CD;
    ASSERT_TRUE(SavePicture(path, picture));
    const PixelMap loaded = LoadPicture(path);
    EXPECT_EQ(301, loaded.width);
    EXPECT_EQ(picture.pixels, loaded.pixels);
    std::remove(path.c_str());
}

TEST(PictureFileTest, WhatIsNoPictureLoadsEmpty) {
    EXPECT_EQ(0, LoadPicture("no such file").width);
    const std::string path = "picture_file_test.txt";
    std::ofstream(path) << std::string(3000, 'x');
    EXPECT_EQ(0, LoadPicture(path).width);
    std::remove(path.c_str());
}

TEST(PictureFileTest, MoreThan256ColoursAreRefused) {
    PixelMap picture(257, 1);
    for (int x = 0; x < 257; ++x)
        picture.At(x, 0) = static_cast<uint32_t>(x);
    EXPECT_FALSE(SavePicture("picture_file_test.bmp", picture));
}

TEST(PictureFileTest, FourPixelsAndEightLevelsAreLetThrough) {
    const PixelMap expected = Striped(20, 20);
    PixelMap actual = expected;
    for (uint32_t &pixel : actual.pixels)
        pixel = pixel == 0xFFFFFF ? 0xF7F7F7 : pixel;
    EXPECT_TRUE(ComparePictures(actual, expected).same);
    for (int x = 1; x <= 4; ++x)
        actual.At(x, 2) = 0xFF0000;
    EXPECT_TRUE(ComparePictures(actual, expected).same);
    actual.At(10, 5) = 0xFF0000;
    EXPECT_FALSE(ComparePictures(actual, expected).same);
}

TEST(PictureFileTest, ADifferenceSaysHowMuchAndWhere) {
    const PixelMap expected(20, 20, 0xFFFFFF);
    PixelMap actual = expected;
    for (int x = 3; x < 12; ++x)
        actual.At(x, 7) = 0xFFFFFF - 9;
    const PictureDifference difference = ComparePictures(actual, expected);
    EXPECT_EQ("9 pixels differ, within (3,7)-(12,8)", difference.text);
    EXPECT_EQ(0xFF0000u, difference.shown.At(3, 7));
    EXPECT_EQ("size 20x20 instead of 21x20", ComparePictures(actual, PixelMap(21, 20)).text);
}

} // namespace
