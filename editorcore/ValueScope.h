// CValueScope: a variable holds another value for the duration of a block.
#pragma once

template <class Value> class CValueScope {
public:
    CValueScope(Value *variable, Value value) : m_variable(variable), m_before(*variable) { *variable = value; }
    ~CValueScope() { *m_variable = m_before; }
    CValueScope(const CValueScope &) = delete;
    CValueScope &operator=(const CValueScope &) = delete;

private:
    Value *m_variable;
    Value m_before;
};
