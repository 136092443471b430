// CList, a doubly linked list; part of afxtempl.h.
#pragma once

#include "afxexcept.h"

// How containers compare; specialised for types whose == is not what is meant.
template <class TYPE, class ARG_TYPE> BOOL CompareElements(const TYPE *element1, const ARG_TYPE *element2) {
    return *element1 == *element2;
}

template <class TYPE, class ARG_TYPE = const TYPE &> class CList : public CObject {
public:
    explicit CList(int = 10) {}
    ~CList() override { RemoveAll(); }

    int GetCount() const { return m_count; }
    int GetSize() const { return m_count; }
    bool IsEmpty() const { return m_count == 0; }
    TYPE &GetHead() { return Need(m_head)->data; }
    const TYPE &GetHead() const { return Need(m_head)->data; }
    TYPE &GetTail() { return Need(m_tail)->data; }
    const TYPE &GetTail() const { return Need(m_tail)->data; }

    TYPE RemoveHead() { return Take(Need(m_head)); }
    TYPE RemoveTail() { return Take(Need(m_tail)); }
    POSITION AddHead(ARG_TYPE element) { return Link(new Node(element), nullptr, m_head); }
    POSITION AddTail(ARG_TYPE element) { return Link(new Node(element), m_tail, nullptr); }
    void AddHead(CList *list);
    void AddTail(CList *list);
    void RemoveAll();

    // A position becomes null when GetNext or GetPrev has passed the last element.
    POSITION GetHeadPosition() const { return reinterpret_cast<POSITION>(m_head); }
    POSITION GetTailPosition() const { return reinterpret_cast<POSITION>(m_tail); }
    TYPE &GetNext(POSITION &position) { return Step(position, &Node::next)->data; }
    const TYPE &GetNext(POSITION &position) const { return Step(position, &Node::next)->data; }
    TYPE &GetPrev(POSITION &position) { return Step(position, &Node::prev)->data; }
    const TYPE &GetPrev(POSITION &position) const { return Step(position, &Node::prev)->data; }
    TYPE &GetAt(POSITION position) { return At(position)->data; }
    const TYPE &GetAt(POSITION position) const { return At(position)->data; }
    void SetAt(POSITION position, ARG_TYPE element) { At(position)->data = element; }
    void RemoveAt(POSITION position) { Remove(At(position)); }
    // A null position means the list's head and tail.
    POSITION InsertBefore(POSITION position, ARG_TYPE element);
    POSITION InsertAfter(POSITION position, ARG_TYPE element);

    POSITION Find(ARG_TYPE value, POSITION startAfter = nullptr) const;
    // Null when there is no such index.
    POSITION FindIndex(int index) const;

private:
    struct Node {
        explicit Node(ARG_TYPE element) : data(element) {}
        Node *next = nullptr;
        Node *prev = nullptr;
        TYPE data;
    };

    static Node *Need(Node *node) {
        if (!node)
            AfxThrowInvalidArgException();
        return node;
    }
    static Node *At(POSITION position) { return Need(reinterpret_cast<Node *>(position)); }
    static Node *Step(POSITION &position, Node *Node::*direction) {
        Node *node = At(position);
        position = reinterpret_cast<POSITION>(node->*direction);
        return node;
    }
    POSITION Link(Node *node, Node *prev, Node *next);
    TYPE Take(Node *node);
    void Remove(Node *node);

    Node *m_head = nullptr;
    Node *m_tail = nullptr;
    int m_count = 0;
};

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::Link(Node *node, Node *prev, Node *next) {
    node->prev = prev;
    node->next = next;
    (prev ? prev->next : m_head) = node;
    (next ? next->prev : m_tail) = node;
    m_count++;
    return reinterpret_cast<POSITION>(node);
}

template <class TYPE, class ARG_TYPE> void CList<TYPE, ARG_TYPE>::Remove(Node *node) {
    (node->prev ? node->prev->next : m_head) = node->next;
    (node->next ? node->next->prev : m_tail) = node->prev;
    m_count--;
    delete node;
}

template <class TYPE, class ARG_TYPE> TYPE CList<TYPE, ARG_TYPE>::Take(Node *node) {
    TYPE result(std::move(node->data));
    Remove(node);
    return result;
}

template <class TYPE, class ARG_TYPE> void CList<TYPE, ARG_TYPE>::AddHead(CList *list) {
    POSITION before = GetHeadPosition();
    int count = list->m_count;
    for (POSITION from = list->GetHeadPosition(); count > 0; count--)
        InsertBefore(before, list->GetNext(from));
}

template <class TYPE, class ARG_TYPE> void CList<TYPE, ARG_TYPE>::AddTail(CList *list) {
    int count = list->m_count;
    for (POSITION from = list->GetHeadPosition(); count > 0; count--)
        AddTail(list->GetNext(from));
}

template <class TYPE, class ARG_TYPE> void CList<TYPE, ARG_TYPE>::RemoveAll() {
    while (m_head)
        Remove(m_head);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertBefore(POSITION position, ARG_TYPE element) {
    if (!position)
        return AddHead(element);
    Node *next = At(position);
    return Link(new Node(element), next->prev, next);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertAfter(POSITION position, ARG_TYPE element) {
    if (!position)
        return AddTail(element);
    Node *prev = At(position);
    return Link(new Node(element), prev, prev->next);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::Find(ARG_TYPE value, POSITION startAfter) const {
    for (Node *node = startAfter ? At(startAfter)->next : m_head; node; node = node->next)
        if (CompareElements(&node->data, &value))
            return reinterpret_cast<POSITION>(node);
    return nullptr;
}

template <class TYPE, class ARG_TYPE> POSITION CList<TYPE, ARG_TYPE>::FindIndex(int index) const {
    if (index < 0 || index >= m_count)
        return nullptr;
    Node *node = m_head;
    while (index-- > 0)
        node = node->next;
    return reinterpret_cast<POSITION>(node);
}
