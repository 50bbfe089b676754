#pragma once

#include <memory>

#include <gio/gio.h>

/// Owners of what GLib hands out.
struct GlibRelease {
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(GVariant* value) const { g_variant_unref(value); }
    void operator()(GSettingsSchema* schema) const { g_settings_schema_unref(schema); }
    void operator()(const char** strings) const { g_free(strings); }
    template <typename Object>
    void operator()(Object* object) const {
        g_object_unref(object);
    }
};

template <typename Object>
using ObjectPointer = std::unique_ptr<Object, GlibRelease>;
using ErrorPointer = std::unique_ptr<GError, GlibRelease>;
using VariantPointer = std::unique_ptr<GVariant, GlibRelease>;
using SchemaPointer = std::unique_ptr<GSettingsSchema, GlibRelease>;
