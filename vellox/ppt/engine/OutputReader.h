/// @file
/// What is read of an open presentation's file, beside what was read of the template.

#ifndef VELLOX_PPT_ENGINE_OUTPUTREADER_H
#define VELLOX_PPT_ENGINE_OUTPUTREADER_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/ppt/package/OPCPackage.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

/// On the template's bytes, or on the copy that stands at the output path. Most decks never need one.
class OutputReader {
public:
    /// @param bytes empty where the copy stands there
    /// @throws cannotOpenFile
    OutputReader(const std::wstring& path, boost::shared_ptr<const std::string> bytes);

    /// The speaker's page of a slide.
    /// @return empty if there is none
    /// @throws opc::Exception, partDOMBuildError
    boost::shared_ptr<const TemplateNotes> readNotes(const std::wstring& slidePartName);

private:
    static OPCPackage& open(OPCPackage& package, const std::string* bytes);

    boost::shared_ptr<const std::string> bytes_;
    OPCPackage package_;
    PartDOMBuilder builder_;
};

} // namespace vellox::ppt

#endif
