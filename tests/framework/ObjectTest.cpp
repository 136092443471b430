#include <afx.h>

#include <gtest/gtest.h>

namespace {

class CAnimal : public CObject {
    DECLARE_DYNAMIC(CAnimal)
};
class CDog : public CAnimal {
    DECLARE_DYNCREATE(CDog)
};
class CCat : public CAnimal {
    DECLARE_SERIAL(CCat)
};

IMPLEMENT_DYNAMIC(CAnimal, CObject)
IMPLEMENT_DYNCREATE(CDog, CAnimal)
IMPLEMENT_SERIAL(CCat, CAnimal, 3)

} // namespace

TEST(CObject, KindOfFollowsTheBases) {
    CDog dog;
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CDog)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CAnimal)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(dog.IsKindOf(RUNTIME_CLASS(CCat)));
    EXPECT_STREQ(dog.GetRuntimeClass()->m_lpszClassName, "CDog");
}

TEST(CObject, DynamicDowncast) {
    CDog dog;
    CObject *object = &dog;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CDog, object), &dog);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CCat, object), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CDog, static_cast<CObject *>(nullptr)), nullptr);
    EXPECT_EQ(STATIC_DOWNCAST(CAnimal, object), &dog);
}

TEST(CObject, CreatesByClass) {
    CObject *cat = RUNTIME_CLASS(CCat)->CreateObject();
    ASSERT_NE(cat, nullptr);
    EXPECT_TRUE(cat->IsSerializable());
    EXPECT_EQ(cat->GetRuntimeClass()->m_wSchema, 3u);
    delete cat;
    EXPECT_EQ(RUNTIME_CLASS(CAnimal)->CreateObject(), nullptr);
    CDog dog;
    EXPECT_FALSE(dog.IsSerializable());
}

TEST(Diagnostics, ReleaseMacrosDoNotEvaluateWhatTheyCheck) {
    int calls = 0;
    ASSERT(++calls);
    TRACE("%d", ++calls);
    EXPECT_EQ(calls, 0);
    VERIFY(++calls);
    EXPECT_EQ(calls, 1);
}
