// CUGValueScope: a member has another value within a block, and the former one after it, on the way out of an
// exception too.
#pragma once

template <class T> class CUGValueScope {
public:
    CUGValueScope(T *member, T value) : m_member(member), m_before(*member) { *member = value; }
    ~CUGValueScope() { *m_member = m_before; }
    CUGValueScope(const CUGValueScope &) = delete;
    CUGValueScope &operator=(const CUGValueScope &) = delete;

private:
    T *m_member;
    T m_before;
};
