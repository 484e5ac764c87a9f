/// @file
/// A look at XML before it is parsed.

#ifndef VELLOX_OPC_MARKUPGUARD_H
#define VELLOX_OPC_MARKUPGUARD_H

#include <array>
#include <cstddef>
#include <string>

namespace opc {

/// Reads along ahead of the parser and refuses what the parser would take without a word, a document type
/// declaration, or would spend its time on before anybody hears of it, an element with very many attributes.
/// It knows where markup starts and ends, in UTF-16 and whatever has the signs of ASCII; what isn't
/// well-formed is left to the parser.
class MarkupGuard {
public:
    /// @param bytes the next of the document
    /// @throws opc::Exception
    void watch(const unsigned char* bytes, std::size_t count);

private:
    enum class State { Text, Markup, Comment, CData, Instruction, Tag, Quoted };

    void detectWidth();
    void watchSingle(const unsigned char* bytes, std::size_t count);
    void watchDouble(const unsigned char* bytes, std::size_t count);
    void take(char16_t c);
    bool isEnd() const;
    void judgeMarkup();
    void takeInTag(char16_t c);
    void enter(State state);

    State state_ = State::Text;
    std::string seen_;           // of markup that isn't known yet
    std::array<char, 3> last_{}; // of what is passed over up to its end
    char16_t quote_ = 0;
    unsigned attributes_ = 0;
    std::string start_;  // until the width is known
    unsigned width_ = 0; // bytes of a character, 0 as long as it isn't known
    bool isBigEndian_ = false;
    int half_ = -1; // the first byte of a character of two
};

} // namespace opc

#endif
