// SPDX-License-Identifier: MIT
#pragma once

#include "ThreadMaps.h"

#include <memory>
#include <unordered_map>
#include <utility>

namespace afx {

/// Connects the handles of one kind with the objects that wrap them.
///
/// A permanent object is one that a program created and attached itself; the map only points to it.
/// A temporary object is made here for a handle nobody wrapped; the map owns it until DeleteTemp().
/// A temporary never owns its handle: it is detached from it before it is destroyed.
///
/// OBJ has a default constructor and a Detach() that withdraws the object with RemovePermanent()
/// and empties the members given to the constructor.
/// Maps are not shared between threads; ThreadHandleMap() gives the one of the calling thread.
template <class H, class OBJ>
class HandleMap final : public ThreadMap {
public:
    /// @param handle  where OBJ keeps the handle; may be a member of a base of OBJ.
    /// @param alias   a second place that holds the same handle, or null.
    explicit HandleMap(H OBJ::*handle, H OBJ::*alias = nullptr)
        : m_handle(handle), m_alias(alias) {}
    HandleMap(const HandleMap&) = delete;
    HandleMap& operator=(const HandleMap&) = delete;
    ~HandleMap() override { DeleteTemp(); }

    /// The object attached to `handle` by the program, or null.
    OBJ* FindPermanent(H handle) const {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }

    /// The permanent object, else the temporary one that still has the handle, else null.
    OBJ* Find(H handle) const {
        if (OBJ* const permanent = FindPermanent(handle)) {
            return permanent;
        }
        const auto found = m_temporary.find(handle);
        if (found == m_temporary.end() || (*found->second).*m_handle != handle) {
            return nullptr;
        }
        return found->second.get();
    }

    /// As Find(), but a handle without an object is given a temporary one. Null for a null handle.
    OBJ* FromHandle(H handle) {
        if (handle == nullptr) {
            return nullptr;
        }
        if (OBJ* const known = Find(handle)) {
            return known;
        }
        auto entry = m_temporary.find(handle);
        if (entry == m_temporary.end()) {
            // The object first: without memory for it the table must not get an empty entry.
            entry = m_temporary.emplace(handle, std::make_unique<OBJ>()).first;
        } else {
            // Its handle was deleted through it, and the system has given the value out again.
            entry->second->Detach();
        }
        Aim(*entry->second, handle);
        return entry->second.get();
    }

    /// Makes `object` the permanent one of `handle`. A temporary object that exists stays valid
    /// until DeleteTemp(), but is no longer found. Nothing happens for a null handle.
    void SetPermanent(H handle, OBJ* object) {
        if (handle != nullptr) {
            m_permanent[handle] = object;
        }
    }

    /// Forgets `object` as the permanent one of `handle`, if it is. Another object stays: one whose
    /// handle was destroyed behind its back must not push out the wrapper of the reused value, nor
    /// a temporary the permanent object that came after it.
    void RemovePermanent(H handle, const OBJ* object) {
        const auto found = m_permanent.find(handle);
        if (found != m_permanent.end() && found->second == object) {
            m_permanent.erase(found);
        }
    }

    /// Destroys all temporary objects; their handles stay as they are.
    void DeleteTemp() override {
        // Emptied first: a destructor that looks up a handle must not meet a half-destroyed table.
        const Temporaries doomed = std::exchange(m_temporary, Temporaries());
        for (const auto& entry : doomed) {
            entry.second->Detach();
        }
    }

private:
    using Temporaries = std::unordered_map<H, std::unique_ptr<OBJ>>;

    void Aim(OBJ& object, H handle) const {
        object.*m_handle = handle;
        if (m_alias != nullptr) {
            object.*m_alias = handle;
        }
    }

    H OBJ::*const m_handle;
    H OBJ::*const m_alias;
    std::unordered_map<H, OBJ*> m_permanent;
    Temporaries m_temporary;
};

/// The calling thread's map from H to OBJ: made at the first call, destroyed when the thread ends.
/// @param handle, alias  as for HandleMap; the same at each call for one OBJ.
template <class H, class OBJ>
HandleMap<H, OBJ>& ThreadHandleMap(H OBJ::*handle, H OBJ::*alias = nullptr) {
    static const std::size_t kind = NewThreadMapKind();
    std::unique_ptr<ThreadMap>& place = ThreadMapPlace(kind);
    if (place == nullptr) {
        place = std::make_unique<HandleMap<H, OBJ>>(handle, alias);
    }
    return static_cast<HandleMap<H, OBJ>&>(*place);
}

} // namespace afx
