#include "vellox/foundation/ImageSource.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/Utf8.h"

#include <boost/interprocess/streams/bufferstream.hpp>
#include <boost/make_shared.hpp>
#include <filesystem>
#include <fstream>

namespace vellox {

ImageSource::ImageSource(std::string bytes)
    : bytes_(boost::make_shared<const std::string>(std::move(bytes))),
      extension_(findImageExtension(*bytes_)) {
    if (extension_.empty())
        raise(ppt_error::unknownImageBytes(std::to_wstring(bytes_->size())));
}

ImageSource::ImageSource(std::string bytes, const std::wstring& extension)
    : bytes_(boost::make_shared<const std::string>(std::move(bytes))),
      extension_(extension) {}

std::wstring ImageSource::getFileName() const {
    return bytes_ ? L"image." + extension_ : path_;
}

ImageInfo ImageSource::getInfo() const {
    return bytes_ ? InfoUtils::getImageInfo(*open(), extension_) : InfoUtils::getImageInfo(path_);
}

ImageTraits ImageSource::getTraits() const {
    const auto stream = open();
    return stream && *stream ? readImageTraits(*stream) : ImageTraits();
}

std::unique_ptr<std::istream> ImageSource::open() const {
    if (bytes_)
        return std::make_unique<boost::interprocess::ibufferstream>(bytes_->data(), bytes_->size());
    std::error_code failure;
    if (!std::filesystem::is_regular_file(toUtf8(path_), failure))
        return nullptr; // a pipe might never answer
    return std::make_unique<std::ifstream>(toUtf8(path_), std::ios::binary);
}

} // namespace vellox
