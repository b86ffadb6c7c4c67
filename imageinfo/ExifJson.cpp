// SPDX-License-Identifier: MIT
#include "imageinfo/ExifJson.h"

#include "imageinfo/Json.h"

#include <cmath>
#include <cstdio>

namespace {

/// Puts an object together, field by field.
class JsonObject {
public:
    void Add(const char* name, const std::string& json) {
        m_text += m_text.empty() ? "{" : ", ";
        m_text += JsonString(name) + ": " + json;
    }
    void Add(const char* name, const char* text) { Add(name, JsonString(text)); }
    void Add(const char* name, bool value) { Add(name, std::string(value ? "true" : "false")); }
    void Add(const char* name, int32_t value) { Add(name, std::to_string(value)); }
    void Add(const char* name, float value) {
        char number[32];
        snprintf(number, sizeof(number), "%.9g", static_cast<double>(value));
        Add(name, std::isfinite(value) ? std::string(number) : std::string("null"));
    }
    std::string Text() const { return m_text + "}"; }

private:
    std::string m_text;
};

} // namespace

std::string ExifJson(const CxImageJPG& image) {
    const ExifInfo& info = image.Exif();
    JsonObject json;
    json.Add("exifVersion", info.exifVersion);
    json.Add("cameraMake", info.cameraMake);
    json.Add("cameraModel", info.cameraModel);
    json.Add("dateTime", info.dateTime);
    json.Add("height", info.height);
    json.Add("width", info.width);
    json.Add("orientation", info.orientation);
    json.Add("isColor", info.isColor);
    json.Add("process", info.process);
    json.Add("flashUsed", info.flashUsed);
    json.Add("focalLength", info.focalLength);
    json.Add("exposureTime", info.exposureTime);
    json.Add("apertureFNumber", info.apertureFNumber);
    json.Add("subjectDistance", info.subjectDistance);
    json.Add("ccdWidth", info.ccdWidth);
    json.Add("exposureBias", info.exposureBias);
    json.Add("lightSource", info.lightSource);
    json.Add("meteringMode", info.meteringMode);
    json.Add("exposureProgram", info.exposureProgram);
    json.Add("isoEquivalent", info.isoEquivalent);
    json.Add("compressionLevel", info.compressionLevel);
    json.Add("focalPlaneXRes", info.focalPlaneXRes);
    json.Add("focalPlaneYRes", info.focalPlaneYRes);
    json.Add("focalPlaneUnits", info.focalPlaneUnits);
    json.Add("xResolution", info.xResolution);
    json.Add("yResolution", info.yResolution);
    json.Add("resolutionUnit", info.resolutionUnit);
    json.Add("brightness", info.brightness);
    json.Add("comments", info.comments);
    const int32_t thumbnail = image.ThumbnailPosition();
    json.Add("thumbnailData", thumbnail < 0 ? std::string("null") : std::to_string(thumbnail));
    json.Add("thumbnailSize", std::to_string(info.thumbnailSize));
    json.Add("isExif", info.isExif);
    return json.Text();
}
