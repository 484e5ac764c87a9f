/// @file
/// The parts that are particular to a presentation: slides and media.

#ifndef VELLOX_PPT_WRITERS_PPTPARTWRITER_H
#define VELLOX_PPT_WRITERS_PPTPARTWRITER_H

#include <map>
#include <set>
#include <string>

#include "vellox/ppt/package/PartDOMWriter.h"
#include "vellox/ppt/writers/ImageIndex.h"
#include "vellox/ppt/xml/Dom.h"

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

    /// "/ppt/slides/slide<n>.xml" with the next number whose name is free.
    std::wstring takeSlideName();
    /// Makes the part of a new slide, and its relationship to the slide's layout.
    /// @return the name of the part
    std::wstring createSlidePart(const TemplateSlide& slide, const std::wstring& name);
    /// A part of the same type and content as another, still without relationships.
    opc::Part copyPart(opc::Part from, const std::wstring& name, bool isStored);
    /// A name such as another one that is free: "/ppt/charts/chart7.xml" for "/ppt/charts/chart1.xml".
    std::wstring chooseNameLike(const std::wstring& name);
    /// Takes parts out of the package.
    void deleteParts(const std::set<opc::PartName>& names) { package_->deleteParts(names); }
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
    /// The part that the package's first relationship of a type leads to.
    /// @return empty if there is none
    std::wstring findPackagePart(const std::wstring& type) const;
    /// The document of a part of minor importance.
    /// @return empty for no part, and for one that can't be read
    OwnedDocument readIfWellFormed(const std::wstring& partName);
    /// Makes a part for a document that a relationship of the package leads to.
    /// @param stem of its name, without the extension
    /// @throws opc::Exception
    void writePackageDocument(const std::wstring& stem, const std::wstring& relationshipType,
                              const std::wstring& contentType, xercesc::DOMDocument* document);
    /// Takes out what the template's package had.
    /// @throws opc::Exception
    void removeExtra(const PackageExtra& extra);

private:
    std::wstring chooseMediaName(const std::wstring& imagePath) const;
    std::wstring requireImagePart(const ImageSource& image, bool isShared);
    std::wstring createImagePart(const ImageSource& image);

    unsigned int slideCounter_ = 0;
    std::map<std::wstring, unsigned int>
        counters_; // of names alike but for a number, the last that was tried
    ImageIndex images_;
};

/// Gives a part those of another's relationships that have one of some ids in ascending order, or all, under the same
/// ids.
void copyRelationships(const opc::Part& from, opc::Part& to, const std::vector<std::wstring>* ids = nullptr);

} // namespace vellox::ppt

#endif
