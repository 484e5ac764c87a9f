/// @file
/// The parts that are particular to a presentation: slides and media.

#ifndef VELLOX_PPT_WRITERS_PPTPARTWRITER_H
#define VELLOX_PPT_WRITERS_PPTPARTWRITER_H

#include <string>

#include "vellox/ppt/package/PartDOMWriter.h"
#include "vellox/ppt/writers/ImageIndex.h"

namespace vellox::ppt {

class Rules;
struct PackageExtra;
struct TemplateSlide;

class PPTPartWriter : public PartDOMWriter {
public:
    explicit PPTPartWriter(boost::shared_ptr<OPCPackage> package);
    ~PPTPartWriter() override;

    /// New slides are numbered from the next number on.
    void setSlideCounter(unsigned int slideCounter) { slideCounter_ = slideCounter; }

    /// Makes the part of a new slide, "/ppt/slides/slide<n>.xml" with the next number whose name is free,
    /// and its relationship to the slide's layout.
    /// @return the name of the part
    std::wstring createSlidePart(const TemplateSlide& slide);
    /// Points from a part to a target outside the package, which is made a reference if it isn't one.
    /// @return the id of the relationship; empty if the target is empty or blank, or if there is no such part
    std::wstring addHyperlink(const std::wstring& partName, const std::wstring& target);
    /// Puts an image into the package, in a part with a random name, and points to it from a part. A file is copied
    /// when the package is saved.
    /// @param isShared whether an image of the same bytes that was put in before serves as well
    /// @return the id of the relationship; empty if a file can't be read to its end, or is no regular file
    std::wstring addImage(const std::wstring& partName, const ImageSource& image, bool isShared);
    /// Whether a relationship of a part leads to a part whose type is that of an image. It isn't for a file
    /// whose extension neither this library nor the template knows.
    bool leadsToImage(const std::wstring& partName, const std::wstring& relationshipId) const;
    /// Points from a part to another.
    /// @return the id of the relationship
    std::wstring addRelationship(const std::wstring& partName, const std::wstring& type,
                                 const std::wstring& target);
    /// Lets the type of the main part follow the extension of the output file, as the rules have it.
    /// @return the type from now on
    std::wstring alignMainType(const std::wstring& mainPartName, const Rules& rules);
    /// Takes out what the template's package had.
    /// @throws opc::Exception
    void removeExtra(const PackageExtra& extra);

private:
    std::wstring chooseMediaName(const std::wstring& imagePath) const;
    std::wstring requireImagePart(const ImageSource& image, bool isShared);
    std::wstring createImagePart(const ImageSource& image);

    unsigned int slideCounter_ = 0;
    ImageIndex images_;
};

} // namespace vellox::ppt

#endif
