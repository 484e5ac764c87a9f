/// @file
/// Free text boxes and text placeholders; BaseTextBoxWriter does all the work.

#ifndef VELLOX_PPT_WRITERS_TEXTBOXWRITER_H
#define VELLOX_PPT_WRITERS_TEXTBOXWRITER_H

#include "vellox/ppt/writers/BaseTextBoxWriter.h"

namespace vellox::ppt {

class TextBoxWriter : public BaseTextBoxWriter {
public:
    using BaseTextBoxWriter::BaseTextBoxWriter;
};

class TextBoxPlaceholderWriter : public BaseTextBoxWriter {
public:
    using BaseTextBoxWriter::BaseTextBoxWriter;
};

} // namespace vellox::ppt

#endif
