#include <afx.h>

#include <gtest/gtest.h>
#include <new>

namespace {

// Knows how many of it there are.
class CCounted : public CException {
    DECLARE_DYNAMIC(CCounted)
public:
    CCounted() { living++; }
    ~CCounted() override { living--; }
    static inline int living = 0;
};
IMPLEMENT_DYNAMIC(CCounted, CException)

CString MessageOf(CException *e) {
    char text[200];
    return e->GetErrorMessage(text, sizeof text) ? text : "(none)";
}

void ThrowThrough() {
    TRY {
        THROW(new CCounted);
    }
    CATCH(CMemoryException, e) {
        FAIL() << "of another class";
    }
    AND_CATCH(CCounted, e) {
        THROW_LAST();
    }
    END_CATCH
}

} // namespace

TEST(Exceptions, CaughtOnesAreDeleted) {
    bool caught = false;
    TRY {
        THROW(new CCounted);
    }
    CATCH(CCounted, e) {
        caught = true;
        EXPECT_EQ(CCounted::living, 1);
    }
    END_CATCH
    EXPECT_TRUE(caught);
    EXPECT_EQ(CCounted::living, 0);
}

TEST(Exceptions, ThrowLastHandsTheSameObjectOn) {
    bool caught = false;
    TRY {
        ThrowThrough();
    }
    CATCH_ALL(e) {
        caught = true;
        EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CCounted)));
        EXPECT_EQ(CCounted::living, 1);
    }
    END_CATCH_ALL
    EXPECT_TRUE(caught);
    EXPECT_EQ(CCounted::living, 0);
}

TEST(Exceptions, PreparedOnesSurviveDelete) {
    for (int i = 0; i < 2; i++) {
        try {
            AfxThrowMemoryException();
        } catch (CMemoryException *e) {
            EXPECT_STREQ(MessageOf(e), "Out of memory.");
            e->Delete();
        }
    }
    EXPECT_THROW(AfxThrowUserException(), CUserException *);
    EXPECT_THROW(AfxThrowResourceException(), CResourceException *);
    EXPECT_THROW(AfxThrowNotSupportedException(), CNotSupportedException *);
    EXPECT_THROW(AfxThrowInvalidArgException(), CInvalidArgException *);
}

TEST(Exceptions, NewHandlerThrowsTheMemoryException) {
    const std::new_handler handler = std::get_new_handler();
    ASSERT_NE(handler, nullptr);
    EXPECT_THROW(handler(), CMemoryException *);
}

TEST(Exceptions, FileMessagesNameTheFile) {
    CFileException e(CFileException::fileNotFound, -1, "a.dat");
    EXPECT_STREQ(MessageOf(&e), "a.dat was not found.");
    CFileException unnamed(CFileException::diskFull);
    EXPECT_STREQ(MessageOf(&unnamed), "Disk full while accessing an unnamed file.");
    CArchiveException archive(CArchiveException::badIndex, "x");
    EXPECT_STREQ(MessageOf(&archive), "x has a bad format.");
    CUserException user(FALSE);
    EXPECT_STREQ(MessageOf(&user), "(none)");
}

TEST(Exceptions, MessageIsCutToTheBuffer) {
    CMemoryException e(FALSE);
    char text[4];
    EXPECT_TRUE(e.GetErrorMessage(text, sizeof text));
    EXPECT_STREQ(text, "Out");
}
