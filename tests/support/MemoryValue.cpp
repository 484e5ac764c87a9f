#include "tests/support/MemoryValue.h"

#include "vellox/foundation/Conversions.h"

#include <boost/make_shared.hpp>

namespace vellox::test {

namespace {

class MemoryValue : public hvArray {
public:
    int classCode = 2;
    std::string className = "struct";
    Dimensions dimensions;
    std::wstring text;
    std::deque<bool> logicals; // a vector of bool has no elements to point to
    std::vector<double> numbers;
    std::vector<Value> cells;
    std::vector<boost::shared_ptr<objreg::HostInterface>> objects;

    int getClassCode() const override { return classCode; }
    std::string getClassName() const override { return className; }
    unsigned int getNDimensions() const override { return static_cast<unsigned int>(dimensions.size()); }
    std::size_t getDimension(unsigned int i) const override { return dimensions[i]; }
    double getDouble() const override { return numbers.at(0); }
    int getInteger() const override { return truncateToInt(numbers.at(0)); }
    bool getLogical() const override { return logicals.empty() ? numbers.at(0) != 0 : logicals[0]; }
    std::wstring getString() const override { return text; }
    const bool* getLogicals() const override { return logicals.empty() ? nullptr : &logicals[0]; }
    const double* getDoubles() const override { return numbers.data(); }
    const hvArray* getCell(std::size_t i) const override { return cells.at(i).get(); }
    boost::shared_ptr<objreg::HostInterface> getObject(std::size_t i) const override { return objects.at(i); }
};

boost::shared_ptr<MemoryValue> make(int classCode, const char* className, std::size_t size,
                                    Dimensions dimensions) {
    const auto value = boost::make_shared<MemoryValue>();
    value->classCode = classCode;
    value->className = className;
    value->dimensions = dimensions.empty() ? Dimensions{size == 0 ? 0u : 1u, size} : dimensions;
    return value;
}

} // namespace

Value makeChar(const std::wstring& text, Dimensions dimensions) {
    const auto value = make(HvCharClass, "char", text.size(), dimensions);
    value->text = text;
    return value;
}

Value makeLogical(const std::vector<bool>& elements, Dimensions dimensions) {
    const auto value = make(HvLogicalClass, "logical", elements.size(), dimensions);
    value->logicals.assign(elements.begin(), elements.end());
    return value;
}

Value makeNumeric(const std::vector<double>& elements, Dimensions dimensions, int classCode) {
    const auto value =
        make(classCode, classCode == HvDoubleClass ? "double" : "number", elements.size(), dimensions);
    value->numbers = elements;
    return value;
}

Value makeCell(const std::vector<Value>& elements, Dimensions dimensions) {
    const auto value = make(HvCellClass, "cell", elements.size(), dimensions);
    value->cells = elements;
    return value;
}

Value makeObject(const std::vector<boost::shared_ptr<objreg::HostInterface>>& elements,
                 Dimensions dimensions) {
    const auto value = make(HvObjectClass, "object", elements.size(), dimensions);
    value->objects = elements;
    return value;
}

Value makeStruct() {
    return make(2, "struct", 1, {});
}

} // namespace vellox::test
