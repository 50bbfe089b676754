#pragma once

#include <memory>

#include <gio/gio.h>

/// Owners of what GLib hands out.
struct GlibRelease {
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(GKeyFile* file) const { g_key_file_unref(file); }
    void operator()(GSettingsSchema* schema) const { g_settings_schema_unref(schema); }
    void operator()(GVariant* value) const { g_variant_unref(value); }
    void operator()(char* text) const { g_free(text); }
    template <typename Object>
    void operator()(Object* object) const {
        g_object_unref(object);
    }
};

template <typename Object>
using GlibPointer = std::unique_ptr<Object, GlibRelease>;
using VariantPointer = GlibPointer<GVariant>;
