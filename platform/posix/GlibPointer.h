#pragma once

#include <gio/gio.h>

#include <memory>

namespace zy {

struct ReleaseGlib {
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(GKeyFile* file) const { g_key_file_unref(file); }
    void operator()(GVariant* variant) const { g_variant_unref(variant); }
    void operator()(gchar* text) const { g_free(text); }
    template <typename Object>
    void operator()(Object* object) const {
        g_object_unref(object);
    }
};

/// Holds one reference to something of GLib's.
template <typename T>
using GlibPointer = std::unique_ptr<T, ReleaseGlib>;

} // namespace zy
