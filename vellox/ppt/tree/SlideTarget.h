/// @file
/// Links to slides. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_SLIDETARGET_H
#define VELLOX_PPT_TREE_SLIDETARGET_H

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

namespace vellox::ppt {

struct TemplateSlide;

/// The slide that a link leads to, if it leads to one. It is known by its record: a handle would keep alive the slide
/// that the link itself may stand on.
class SlideTarget {
public:
    bool isSet() const { return isSet_; }
    /// Null if the slide is gone.
    boost::shared_ptr<TemplateSlide> get() const { return slide_.lock(); }
    void set(const boost::shared_ptr<TemplateSlide>& slide) {
        slide_ = slide;
        isSet_ = true;
    }
    void unset() { *this = SlideTarget(); }
    /// What leads to one slide leads to another one.
    void redirect(const boost::shared_ptr<TemplateSlide>& from, const boost::shared_ptr<TemplateSlide>& to) {
        if (isSet_ && from && slide_.lock() == from)
            slide_ = to;
    }

private:
    bool isSet_ = false;
    boost::weak_ptr<TemplateSlide> slide_;
};

} // namespace vellox::ppt

#endif
