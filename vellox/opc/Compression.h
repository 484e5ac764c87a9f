/// @file
/// How small a package's entries are made.

#ifndef VELLOX_OPC_COMPRESSION_H
#define VELLOX_OPC_COMPRESSION_H

namespace opc {

enum class Compression {
    Fast,   ///< in little more than half the time that Normal takes, and 5 % larger
    Normal, ///< as most programs do
    Small,  ///< 2 % smaller than Normal, in six times the time
};

} // namespace opc

#endif
