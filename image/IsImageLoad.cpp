// SPDX-License-Identifier: MIT
//
// Loading: which format, which codec.
#include "image/CxIOFile.h"
#include "image/CxMemFile.h"
#include "image/ImageBMP.h"
#include "image/ImageJPG.h"
#include "image/ImagePNG.h"
#include "image/IsImage.h"

#include <memory>

using namespace tint;

namespace {

struct FileCloser {
    void operator()(FILE* file) const { fclose(file); }
};

} // namespace

IsImage::IsImage(const uint8_t* data, uint32_t size) {
    Startup(kFormatUnknown);
    const ImageFormat format = DetectFormat(data, size);
    if (format == kFormatUnknown) {
        MakePlaceholder();
        return;
    }
    CxMemFile stream(const_cast<uint8_t*>(data), size); // decoders only read
    DecodeByType(format, &stream);
}

IsImage::IsImage(const char* path) {
    Startup(kFormatUnknown);
    LoadPath(path);
}

void IsImage::LoadPath(const char* path) {
    const std::unique_ptr<FILE, FileCloser> file(path ? fopen(path, "rb") : nullptr);
    uint8_t head[kSignatureBytes] = {};
    if (file) {
        // The format is looked for in what could be read; a short file is not an error here.
        const size_t read = fread(head, 1, sizeof(head), file.get());
        if (read < sizeof(head))
            clearerr(file.get());
        rewind(file.get());
    }
    const ImageFormat format = DetectFileFormat(head, path);
    if (format == kFormatUnknown)
        MakePlaceholder();
    else
        LoadFromStdioFile(file.get(), format);
    if (!file)
        SetErrorText("file cannot be opened");
}

/// What is shown in place of a picture of an unknown format.  It is a success for the calls that
/// draw it, and a failure by its text.
void IsImage::MakePlaceholder() {
    CreateImage(100, 60, 16, kFormatBmp);
    SetErrorText("unknown image format");
}

bool IsImage::LoadFromStdioFile(FILE* file, uint32_t type) {
    CxIOFile stream(file);
    return DecodeByType(type, file ? &stream : nullptr);
}

bool IsImage::DecodeByType(uint32_t type, CxFile* stream) {
    if (info.ghostOf || !stream) {
        SetErrorText(stream ? "image is a view of another" : "no data to decode");
        return false;
    }
    switch (type) {
    case kFormatBmp:
        return DecodeWith(&CxImageBMP::DecodeBmp, "BMP data are damaged or not supported", stream);
    case kFormatJpeg:
        return DecodeWith(&CxImageJPG::DecodeJpeg, "JPEG data are damaged or not supported",
                          stream);
    case kFormatPng:
        return DecodeWith(&CxImagePNG::DecodePng, "PNG data are damaged or not supported", stream);
    default:
        SetErrorText("unknown image format");
        return false;
    }
}

/// Decodes into a temporary image and takes it over, so that a failure leaves this one alone.
/// @param failure  error text where the codec gives none
template <class Codec>
bool IsImage::DecodeWith(bool (Codec::*decode)(CxFile*), const char* failure, CxFile* stream) {
    Codec picture;
    picture.CopyInfo(*this);
    if (!(picture.*decode)(stream)) {
        SetErrorText(*picture.LastErrorText() ? picture.LastErrorText() : failure);
        return false;
    }
    SetErrorText(nullptr);
    return Transfer(picture);
}
