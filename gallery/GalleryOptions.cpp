// SPDX-License-Identifier: MIT
#include "gallery/GalleryOptions.h"

namespace {

std::string SchemeNames() {
    std::string names;
    for (const automation::ColorScheme& scheme : automation::ColorSchemes())
        names += (names.empty() ? "" : ", ") + std::string(scheme.name);
    return names;
}

} // namespace

GalleryOptions GalleryOptions::Parse(const std::vector<std::string>& arguments) {
    GalleryOptions options;
    for (std::size_t i = 0; i < arguments.size() && options.error.empty(); ++i) {
        const std::string& name = arguments[i];
        if (name != "--pictures" && name != "--scheme") {
            options.error = "unknown option " + name;
        } else if (++i == arguments.size()) {
            options.error = name + " wants a value";
        } else if (name == "--pictures") {
            options.pictures = arguments[i];
        } else {
            options.scheme = automation::FindColorScheme(arguments[i]);
            if (options.scheme == nullptr)
                options.error = "no scheme " + arguments[i] + "; there are " + SchemeNames();
        }
    }
    return options;
}
