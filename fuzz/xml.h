/// @file
/// What the targets that read one XML part of a package have in common.

#ifndef VELLOX_FUZZ_XML_H
#define VELLOX_FUZZ_XML_H

#include "vellox/opc/BoundedParser.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"

#include <boost/make_shared.hpp>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

namespace vellox::fuzz {

/// A parser that serves all inputs of a process.
struct Xml {
    opc::XercesProcess process;
    opc::ParserScope parser{makeParser()};

    static Xml& get() {
        static Xml xml;
        return xml;
    }

private:
    static xercesc::DOMLSParser* makeParser() {
        auto made = std::make_unique<opc::BoundedParser>();
        made->setNamespaceAware(true);
        return made.release();
    }
};

/// Reads a table of rows that XML spells, such as ContentTypes.
/// @throws opc::Exception
template <class Rows> void readRows(Rows& rows, const std::string& bytes) {
    opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(bytes));
    rows.read(*Xml::get().parser, stream);
}

template <class Rows> std::string writeRows(const Rows& rows) {
    std::string bytes;
    opc::StringOutputStream stream(bytes);
    rows.write(stream);
    return bytes;
}

inline std::string toString(const std::uint8_t* data, std::size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

/// Ends the process if something that must hold doesn't.
inline void require(bool holds, const char* what) {
    if (holds)
        return;
    std::cerr << "this doesn't hold: " << what << "\n";
    std::abort();
}

} // namespace vellox::fuzz

#endif
