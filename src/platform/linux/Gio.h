// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <gio/gio.h>

#include <memory>

namespace songsweep::gio {

/// What GLib hands out, owned: a pointer that gives its reference back.
struct Unreference {
    void operator()(gpointer object) const { g_object_unref(object); }
    void operator()(GVariant* value) const { g_variant_unref(value); }
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(gchar* text) const { g_free(text); }
};
template <class Type>
using Owned = std::unique_ptr<Type, Unreference>;

/// Takes the error over; its message becomes ours, GIO's code the nearest of our own.
Error errorFrom(GError* error);

} // namespace songsweep::gio
