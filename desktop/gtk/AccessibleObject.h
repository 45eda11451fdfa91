#pragma once

#include <atk/atk.h>

#include <cstddef>
#include <memory>

namespace zy {

// What all makers of accessible objects for GTK need of its object system.

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
/// An accessible object that is held by who has this.
using HeldObject = std::unique_ptr<AtkObject, Unref>;

/// The object, held once more.
inline AtkObject* Ref(AtkObject* object) {
    return static_cast<AtkObject*>(g_object_ref(object));
}

/// A kind of objects like those of `from`, with its own answers and with so many more bytes.
inline GType RegisterKind(GType from, const char* name, GClassInitFunc initClass, std::size_t more = 0,
                          GInstanceInitFunc initObject = nullptr) {
    GTypeQuery size;
    g_type_query(from, &size);
    return g_type_register_static_simple(from, name, size.class_size, initClass,
                                         static_cast<guint>(size.instance_size + more), initObject,
                                         GTypeFlags{});
}

/// Gives the objects of a kind the answers of an interface.
inline void AddInterface(GType kind, GType interface, GInterfaceInitFunc init) {
    const GInterfaceInfo info{
        .interface_init = init, .interface_finalize = nullptr, .interface_data = nullptr};
    g_type_add_interface_static(kind, interface, &info);
}

/// The answers of a kind that has objects already.
template <typename Class>
Class& KnownClass(GType kind) {
    return *static_cast<Class*>(g_type_class_peek(kind));
}

template <typename... States>
void Add(AtkStateSet* set, States... states) {
    (atk_state_set_add_state(set, states), ...);
}

} // namespace zy
