/// @file
/// What shapes and tokens are filled with, made of what a program has at hand:
///
///     slide.fill({{L"Title", L"Week 47"}, {L"Plot", picture}, {L"Content", list({L"up", list({L"by 3 %"})})}});

#ifndef VELLOX_PPT_OBJECT_CONTENT_H
#define VELLOX_PPT_OBJECT_CONTENT_H

#include <initializer_list>
#include <map>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "vellox/host/values/HvContent.h"
#include "vellox/ppt/object/PPTObject.h"

namespace vellox::ppt {

/// A text, a number, a truth value, a list, a record, or an object such as a Picture. A value; what it is made of is
/// copied, objects are shared.
class VELLOX_API Content {
public:
    /// Nothing.
    Content() = default;
    Content(const wchar_t* text);
    Content(const std::wstring& text);
    Content(bool value);
    template <class Number, class = std::enable_if_t<std::is_arithmetic_v<Number>>>
    Content(Number number) : Content(makeNumber(number)) {}
    template <class Kind, class = std::enable_if_t<std::is_base_of_v<HvContent, Kind>>, class = void,
              class = void>
    Content(const boost::shared_ptr<Kind>& content) : content_(content) {}
    /// A Paragraph, a Picture, a Table.
    template <class Facade, class = std::enable_if_t<std::is_base_of_v<PPTObject, Facade>>, class = void>
    Content(const Facade& object) : content_(boost::make_shared<ObjectContent>(object)) {}
    /// A list of anything that is content; of such vectors, a list of lists.
    template <class Item>
    Content(const std::vector<Item>& items) : Content(makeList({items.begin(), items.end()})) {}

    /// Empty for nothing.
    const HvContentPtr& get() const { return content_; }
    /// For operations that take content.
    operator const HvContentPtr&() const { return content_; }

private:
    static constexpr unsigned long long kGreatest = 0x7FFFFFFFFFFFFFFF; // of a long long

    static HvContentPtr makeNumber(double number);
    static HvContentPtr makeNumber(long long number);
    template <class Number> static HvContentPtr makeNumber(Number number) {
        if constexpr (std::is_floating_point_v<Number>)
            return makeNumber(static_cast<double>(number));
        else if (number > 0 && static_cast<unsigned long long>(number) > kGreatest)
            return Content(std::to_wstring(number)).get(); // all its digits
        else
            return makeNumber(static_cast<long long>(number));
    }
    static HvContentPtr makeList(std::vector<Content> items);
    friend VELLOX_API Content list(std::initializer_list<Content> items);

    HvContentPtr content_;
};

/// Contents under names, in order.
class VELLOX_API Contents {
public:
    using Row = std::pair<std::wstring, Content>;

    Contents() = default;
    Contents(std::initializer_list<Row> rows) : rows_(rows) {}
    Contents(std::vector<Row> rows) : rows_(std::move(rows)) {}
    template <class Value>
    Contents(const std::map<std::wstring, Value>& values) : rows_(values.begin(), values.end()) {}

    const std::vector<Row>& getRows() const { return rows_; }
    /// The content of a name; null if there is none.
    const Content* find(const std::wstring& name) const;

private:
    std::vector<Row> rows_;
};

/// Contents as one value, for tokens with dots in their names and for the rows of a table.
class VELLOX_API RecordContent : public HvContent {
public:
    explicit RecordContent(Contents fields) : HvContent(Unknown), fields_(std::move(fields)) {}
    const Contents& getValue() const { return fields_; }
    static boost::shared_ptr<RecordContent> cast(const HvContentPtr& content);

private:
    Contents fields_;
};

/// A list; one in a list is a level deeper.
VELLOX_API Content list(std::initializer_list<Content> items);
/// A record.
VELLOX_API Content record(const Contents& fields);

} // namespace vellox::ppt

#endif
