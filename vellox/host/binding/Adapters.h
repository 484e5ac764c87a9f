/// @file
/// From facade members to rows of the class table. The types of a member say what the words of its signature
/// are and how its arguments and its result are converted, so that the three can't differ:
///
///     make<Paragraph, std::wstring, unsigned int>({"text", "level"})   // (char, uint32 scalar)
///     property<Slide, &Slide::getName, &Slide::setName>("Name", "...")
///     Method<Paragraph, Text(Wide)>::row<&Paragraph::append>("append", {"text"}, "...")

#ifndef VELLOX_HOST_BINDING_ADAPTERS_H
#define VELLOX_HOST_BINDING_ADAPTERS_H

#include <array>
#include <boost/make_shared.hpp>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include "vellox/foundation/Dimension.h"
#include "vellox/host/binding/BoundClass.h"
#include "vellox/host/values/HvContent.h"
#include "vellox/ppt/engine/Template.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/object/Attribute.h"
#include "vellox/ppt/object/Content.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Slide.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TextBox.h"

namespace vellox::ppt::hostbind {

using Wide = const std::wstring&;

/// @{ The names of the classes that signatures speak of.
template <class C> inline constexpr const char* kBoundName = nullptr;
template <> inline constexpr const char* kBoundName<PPTObject> = "Object";
template <> inline constexpr const char* kBoundName<PPTNode> = "Node";
template <> inline constexpr const char* kBoundName<Template> = "Template";
template <> inline constexpr const char* kBoundName<Slide> = "Slide";
template <> inline constexpr const char* kBoundName<Chart> = "Chart";
template <> inline constexpr const char* kBoundName<Shape> = "Shape";
template <> inline constexpr const char* kBoundName<TextBox> = "TextBox";
template <> inline constexpr const char* kBoundName<Picture> = "Picture";
template <> inline constexpr const char* kBoundName<Table> = "Table";
template <> inline constexpr const char* kBoundName<TableRow> = "TableRow";
template <> inline constexpr const char* kBoundName<TableEntry> = "TableEntry";
template <> inline constexpr const char* kBoundName<Paragraph> = "Paragraph";
template <> inline constexpr const char* kBoundName<Text> = "Text";
template <> inline constexpr const char* kBoundName<ExternalLink> = "ExternalLink";
template <> inline constexpr const char* kBoundName<Message> = "Message";
template <> inline constexpr const char* kBoundName<MessageFilter> = "MessageFilter";
template <> inline constexpr const char* kBoundName<MessageDispatcher> = "MessageDispatcher";
/// @}

/// One truth value gives itself, a number whether it isn't zero.
/// @throws invalidLogicalPropertyValue for anything else
bool toLogical(const hvArray& value);

/// What a refused value is called in an error: a text or a number as it is, anything else by its class and shape.
std::wstring describeValue(const hvArray& value);
/// The same of an item of a list; the empty text for one without content.
std::wstring describeValue(const HvContentPtr& content);

/// The contents that a value has under names.
/// @throws invalidReplaceArg for a field that no content can be made of
Contents toContents(const hvArray& fields);

/// @{ FromHost<T>: the word for an argument of type T, and its conversion from a value that matches the word.
template <class C> struct FromHost {
    static constexpr const char* kWord = kBoundName<C>;
    static C convert(const hvArray& value) { return static_cast<const C&>(*value.getObject(0)->getProxy()); }
};
template <> struct FromHost<std::wstring> {
    static constexpr const char* kWord = "char";
    static std::wstring convert(const hvArray& value) { return value.getString(); }
};
template <> struct FromHost<bool> {
    static constexpr const char* kWord = "logical scalar";
    static bool convert(const hvArray& value) { return toLogical(value); }
};
template <> struct FromHost<unsigned int> {
    static constexpr const char* kWord = "uint32 scalar";
    static unsigned int convert(const hvArray& value) { return static_cast<unsigned int>(value.getDouble()); }
};
template <> struct FromHost<double> {
    static constexpr const char* kWord = "double scalar";
    static double convert(const hvArray& value) { return value.getDouble(); }
};
template <> struct FromHost<Contents> {
    static constexpr const char* kWord = "fields";
    static Contents convert(const hvArray& value) { return toContents(value); }
};
/// What a call may leave out.
template <class T> struct FromHost<std::optional<T>> {
    static constexpr const char* kWord = FromHost<T>::kWord;
};
template <> struct FromHost<std::vector<unsigned char>> {
    static constexpr const char* kWord = "uint8 vector";
    static std::vector<unsigned char> convert(const hvArray& value) { return value.getBytes(); }
};
/// A value as it is, for an adapter to sort out.
template <> struct FromHost<hvArray> {
    static constexpr const char* kWord = "any";
    static const hvArray& convert(const hvArray& value) { return value; }
};
/// @}

/// @{ The argument of a parameter.
template <class A> struct ArgumentOf {
    static constexpr bool kIsOptional = false;
    static decltype(auto) get(const Arguments& arguments, std::size_t i) {
        return FromHost<A>::convert(arguments[i]);
    }
};
template <class T> struct ArgumentOf<std::optional<T>> {
    static constexpr bool kIsOptional = true;
    static std::optional<T> get(const Arguments& arguments, std::size_t i) {
        const hvArray* value = arguments.find(i);
        return value ? std::optional<T>(FromHost<T>::convert(*value)) : std::nullopt;
    }
};
/// @}

/// @{ ToHost<T>: the word for a result of type T, and its conversion.
template <class C> struct ToHost {
    static constexpr const char* kWord = kBoundName<C>;
    static HostResult convert(const C& object) { return ObjectPtr(boost::make_shared<C>(object)); }
};
template <class C> struct ToHost<boost::shared_ptr<C>> {
    static constexpr const char* kWord = kBoundName<C>;
    static HostResult convert(const boost::shared_ptr<C>& object) {
        return object ? HostResult(ObjectPtr(object)) : Empty();
    }
};
template <> struct ToHost<std::wstring> {
    static constexpr const char* kWord = "char";
    static HostResult convert(const std::wstring& text) { return text; }
};
template <> struct ToHost<bool> {
    static constexpr const char* kWord = "logical scalar";
    static HostResult convert(bool value) { return value; }
};
template <> struct ToHost<unsigned int> {
    static constexpr const char* kWord = "uint32 scalar";
    static HostResult convert(unsigned int value) { return value; }
};
template <> struct ToHost<Dimension> {
    static constexpr const char* kWord = "char";
    static HostResult convert(const Dimension& length) { return length.getRawValue(); }
};
template <> struct ToHost<PPTNode::Children> {
    static constexpr const char* kWord = "Node vector";
    static HostResult convert(const PPTNode::Children& nodes) {
        return ObjectArray(nodes.begin(), nodes.end());
    }
};
template <> struct ToHost<TextCells> {
    static constexpr const char* kWord = "any";
    static HostResult convert(const TextCells& cells) { return cells; }
};
template <class T> struct ToHost<BaseAttribute<T>> {
    static constexpr const char* kWord = ToHost<T>::kWord;
    static HostResult convert(const BaseAttribute<T>& attribute) {
        return attribute.isSet() ? ToHost<T>::convert(attribute.get()) : Empty();
    }
};
/// @}

/// @{ Signatures.
/// The name of a parameter.
struct ParameterName {
    const char* text;
    bool isKeyword = false;

    ParameterName(const char* name) : text(name) {}
};

/// That of one which is given by it.
inline ParameterName keyword(const char* name) {
    ParameterName made(name);
    made.isKeyword = true;
    return made;
}

/// The names of a function's parameters, one for each.
template <std::size_t kCount> struct ParameterNames : std::array<ParameterName, kCount> {
    template <class... Names, class = std::enable_if_t<sizeof...(Names) == kCount>>
    ParameterNames(Names... names) : std::array<ParameterName, kCount>{{ParameterName(names)...}} {}
};

/// The parameters of a function that takes arguments of types A.
template <class... A, std::size_t... kI>
Signature makeSignature(const ParameterNames<sizeof...(A)>& names, std::index_sequence<kI...>) {
    static_cast<void>(names); // nothing to name for a function that takes nothing
    return {Parameter{names[kI].text, SignatureWord(FromHost<A>::kWord), ArgumentOf<A>::kIsOptional,
                      names[kI].isKeyword}...};
}
/// @}

/// @{ Constructors.
template <class C, class... A, std::size_t... kI>
ObjectPtr construct(const Arguments& arguments, std::index_sequence<kI...>) {
    static_cast<void>(arguments); // nothing to read for a default constructor
    return boost::make_shared<C>(ArgumentOf<A>::get(arguments, kI)...);
}

/// The constructor of C that takes arguments of types A.
template <class C, class... A> BoundConstructor make(const ParameterNames<sizeof...(A)>& names = {}) {
    return {makeSignature<A...>(names, std::index_sequence_for<A...>()), [](const Arguments& arguments) {
                return construct<C, A...>(arguments, std::index_sequence_for<A...>());
            }};
}
/// @}

/// @{ Methods. Method<C, R(A...)> names one overload of a member of C, or an adapter, which takes the facade
/// and the arguments.
template <class C, class Form> struct Method;

template <class C, class R, class... A> struct Method<C, R(A...)> {
    using Names = ParameterNames<sizeof...(A)>;

    template <R (C::*kMember)(A...)>
    static BoundMethod row(const char* name, const Names& parameters, const char* doc) {
        return makeRow(name, parameters, doc, [](PPTObject* self, const Arguments& arguments) {
            return call([](C& facade, A... a) { return (facade.*kMember)(a...); }, self, arguments,
                        std::index_sequence_for<A...>());
        });
    }
    template <R (C::*kMember)(A...) const>
    static BoundMethod row(const char* name, const Names& parameters, const char* doc) {
        return makeRow(name, parameters, doc, [](PPTObject* self, const Arguments& arguments) {
            return call([](C& facade, A... a) { return (facade.*kMember)(a...); }, self, arguments,
                        std::index_sequence_for<A...>());
        });
    }
    template <R (*kAdapter)(C&, A...)>
    static BoundMethod row(const char* name, const Names& parameters, const char* doc) {
        return makeRow(name, parameters, doc, [](PPTObject* self, const Arguments& arguments) {
            return call(kAdapter, self, arguments, std::index_sequence_for<A...>());
        });
    }

private:
    template <class T> using Plain = std::remove_cv_t<std::remove_reference_t<T>>;

    static BoundMethod makeRow(const char* name, const Names& parameters, const char* doc,
                               BoundMethod::Invoker invoke) {
        const char* result = "void";
        if constexpr (!std::is_void<R>::value)
            result = ToHost<Plain<R>>::kWord;
        return {name, makeSignature<Plain<A>...>(parameters, std::index_sequence_for<A...>()),
                SignatureWord(result), invoke, doc};
    }
    template <class F, std::size_t... kI>
    static HostResult call(F function, PPTObject* self, const Arguments& arguments,
                           std::index_sequence<kI...>) {
        static_cast<void>(arguments);
        C& facade = static_cast<C&>(*self);
        if constexpr (std::is_void<R>::value) {
            function(facade, ArgumentOf<Plain<A>>::get(arguments, kI)...);
            return Void();
        } else {
            return ToHost<Plain<R>>::convert(function(facade, ArgumentOf<Plain<A>>::get(arguments, kI)...));
        }
    }
};
/// @}

/// A function that a class has without an object of it: StaticMethod<R(A...)>::row<&function>(...).
template <class Form> struct StaticMethod;

template <class R, class... A> struct StaticMethod<R(A...)> {
    template <class T> using Plain = std::remove_cv_t<std::remove_reference_t<T>>;

    template <R (*kFunction)(A...)>
    static BoundMethod row(const char* name, const ParameterNames<sizeof...(A)>& parameters,
                           const char* doc) {
        BoundMethod made = {name, makeSignature<Plain<A>...>(parameters, std::index_sequence_for<A...>()),
                            SignatureWord(ToHost<Plain<R>>::kWord),
                            [](PPTObject*, const Arguments& arguments) {
                                return call<kFunction>(arguments, std::index_sequence_for<A...>());
                            },
                            doc};
        made.isStatic = true;
        return made;
    }

private:
    template <R (*kFunction)(A...), std::size_t... kI>
    static HostResult call(const Arguments& arguments, std::index_sequence<kI...>) {
        return ToHost<Plain<R>>::convert(kFunction(FromHost<Plain<A>>::convert(arguments[kI])...));
    }
};

/// @{ Properties. The getters and setters are members of facades or of what these derive from.
template <class Member> struct MemberTypes;
template <class C, class R> struct MemberTypes<R (C::*)()> { using Result = std::decay_t<R>; };
template <class C, class R> struct MemberTypes<R (C::*)() const> { using Result = std::decay_t<R>; };
template <class C, class A> struct MemberTypes<void (C::*)(A)> { using Argument = std::decay_t<A>; };

/// Calls a getter of facade class C.
template <class C, auto kMember> struct ClassGetter {
    using Result = ToHost<typename MemberTypes<decltype(kMember)>::Result>;
    static HostResult get(const PPTObject& self) {
        // Some getters aren't const; a facade is only a handle.
        return Result::convert((const_cast<C&>(static_cast<const C&>(self)).*kMember)());
    }
};

/// Calls a setter of facade class C.
template <class C, auto kMember> struct ClassSetter {
    using Argument = typename MemberTypes<decltype(kMember)>::Argument;
    static void set(PPTObject& self, const hvArray& value) {
        (static_cast<C&>(self).*kMember)(FromHost<Argument>::convert(value));
    }
};

/// The same for a property that may be unset: the empty array calls `kUnset`.
template <class C, auto kMember, auto kUnset> struct UnsettingClassSetter {
    static void set(PPTObject& self, const hvArray& value) {
        if (value.getNElements() == 0)
            (static_cast<C&>(self).*kUnset)();
        else
            ClassSetter<C, kMember>::set(self, value);
    }
};

/// Calls a function that takes the facade.
template <class C, HostResult (*kFunction)(const C&)> struct AdaptedClassGetter {
    static HostResult get(const PPTObject& self) { return kFunction(static_cast<const C&>(self)); }
};

/// Calls a function that takes the facade and the host's value.
template <class C, void (*kFunction)(C&, const hvArray&)> struct AdaptedClassSetter {
    static void set(PPTObject& self, const hvArray& value) { kFunction(static_cast<C&>(self), value); }
};

/// The value of the format that an element has: `kFind` gives the format, `kValue` its value.
template <class C, auto kFind, auto kValue> struct FormatGetter {
    using Result = ToHost<typename MemberTypes<decltype(kValue)>::Result>;
    static HostResult get(const PPTObject& self) {
        const auto format = (static_cast<const C&>(self).*kFind)();
        return format ? Result::convert(((*format).*kValue)()) : Empty();
    }
};

/// A property that is only read.
template <class C, auto kGet> BoundProperty readOnlyProperty(const char* name, const char* doc) {
    using Getter = ClassGetter<C, kGet>;
    return {name, SignatureWord(Getter::Result::kWord), false, Getter::get, nullptr, doc};
}

template <class C, auto kGet, auto kSet> BoundProperty property(const char* name, const char* doc) {
    using Getter = ClassGetter<C, kGet>;
    return {name, SignatureWord(Getter::Result::kWord), false, Getter::get, ClassSetter<C, kSet>::set, doc};
}

/// A property that may be unset.
template <class C, auto kGet, auto kSet, auto kUnset>
BoundProperty optionalProperty(const char* name, const char* doc) {
    using Getter = ClassGetter<C, kGet>;
    using Setter = UnsettingClassSetter<C, kSet, kUnset>;
    return {name, SignatureWord(Getter::Result::kWord), true, Getter::get, Setter::set, doc};
}

/// A property that is the value of a format of an element.
template <class C, auto kFind, auto kValue, auto kSet, auto kUnset>
BoundProperty formatProperty(const char* name, const char* doc) {
    using Getter = FormatGetter<C, kFind, kValue>;
    using Setter = UnsettingClassSetter<C, kSet, kUnset>;
    return {name, SignatureWord(Getter::Result::kWord), true, Getter::get, Setter::set, doc};
}
/// @}

/// @{ Copies. Nodes make theirs; a format is made anew of its value.
template <class C, class = void> constexpr bool kHasClone = false;
template <class C>
constexpr bool kHasClone<C, std::void_t<decltype(std::declval<const C&>().clone())>> = true;
template <class C, class = void> constexpr bool kHasValue = false;
template <class C>
constexpr bool kHasValue<C, std::void_t<decltype(C(std::declval<const C&>().getValue()))>> = true;

template <class C> ObjectPtr copyFormat(const PPTObject& object) {
    const auto value = static_cast<const C&>(object).getValue();
    if constexpr (!std::is_same<std::decay_t<decltype(value)>, bool>::value)
        if (value.empty()) // a format that has no value yet
            return boost::make_shared<C>();
    return boost::make_shared<C>(value);
}

template <class C> constexpr ObjectPtr (*findCopy())(const PPTObject&) {
    if constexpr (kHasClone<C>)
        return [](const PPTObject& object) -> ObjectPtr { return static_cast<const C&>(object).clone(); };
    else if constexpr (std::is_base_of<Format, C>::value && kHasValue<C>)
        return copyFormat<C>;
    else
        return nullptr;
}
/// @}

/// The start of a class's row; the lists come behind.
/// @param superclass without its package
template <class C> BoundClass describe(const char* name, const char* superclass, const char* doc) {
    const auto isInstance = []([[maybe_unused]] const PPTObject& object) {
        if constexpr (std::is_same<C, PPTObject>::value)
            return true;
        else
            return dynamic_cast<const C*>(&object) != nullptr;
    };
    return {name,         {std::string(kPackage) + "." + superclass}, false, doc, isInstance, {}, {}, {}, {},
            findCopy<C>()};
}

/// The same for a class whose objects the library alone makes.
template <class C> BoundClass describeAbstract(const char* name, const char* superclass, const char* doc) {
    BoundClass bound = describe<C>(name, superclass, doc);
    bound.isAbstract = true;
    return bound;
}

template <class Row> void append(std::vector<Row>& rows, const std::vector<Row>& more) {
    rows.insert(rows.end(), more.begin(), more.end());
}

} // namespace vellox::ppt::hostbind

#endif
