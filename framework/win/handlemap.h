// From a handle of the system to its object: internal to the framework.
#pragma once

#include <map>
#include <unordered_map>
#include <utility>

// OBJECT keeps its handle in the member FIELD. Permanent entries are the objects that own a handle; temporary
// ones are made on demand and deleted at idle time without touching what they stand for.
template <class OBJECT, class HANDLE_TYPE, HANDLE_TYPE OBJECT::*FIELD> class HandleMap {
public:
    OBJECT *Permanent(HANDLE_TYPE handle) const {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }
    void SetPermanent(HANDLE_TYPE handle, OBJECT *object) { m_permanent[handle] = object; }
    void Remove(HANDLE_TYPE handle) { m_permanent.erase(handle); }

    OBJECT *Find(HANDLE_TYPE handle, CRuntimeClass *runtimeClass) {
        if (!handle)
            return nullptr;
        if (OBJECT *object = Permanent(handle))
            return object;
        OBJECT *&object = m_temporary[{handle, runtimeClass}];
        if (!object) {
            object = static_cast<OBJECT *>(runtimeClass->CreateObject());
            object->*FIELD = handle;
        }
        return object;
    }
    // The window or graphic object is gone; nobody may find its temporary objects under a reused handle.
    void DeleteTemporary() {
        auto doomed = std::exchange(m_temporary, {});
        for (auto &entry : doomed)
            if (entry.second) {
                entry.second->*FIELD = nullptr;
                delete entry.second;
            }
    }

private:
    std::unordered_map<HANDLE_TYPE, OBJECT *> m_permanent;
    std::map<std::pair<HANDLE_TYPE, CRuntimeClass *>, OBJECT *> m_temporary;
};
