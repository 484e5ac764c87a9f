/// @file
/// Content: the one form in which values of every kind reach add, replace and tables.
///
///     boost::shared_ptr<HvContent> content = boost::make_shared<DoubleContent>(3.5);
///     double number = DoubleContent::getValue(content); // 3.5
///     std::wstring text = StringContent::getValue(content); // empty: the content is of another class
///
/// A program without a host makes its own lists and tables by deriving from HvList and HvTable, see
/// HvViews.h.

#ifndef VELLOX_HOST_VALUES_HVCONTENT_H
#define VELLOX_HOST_VALUES_HVCONTENT_H

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/Api.h"
#include "vellox/host/services/Wrappable.h"

namespace vellox {

class hvArray;
class HvData;
class HvList;
class HvTable;

/// A value of one of the kinds below. Contents never change once they are made.
///
/// Each subclass has cast(), which gives an empty pointer for content of another class, and a class-level
/// getValue(), which gives a zero value for an empty pointer or content of another class. Neither throws.
class VELLOX_API HvContent {
public:
    enum ContentType : int {
        Boolean = 0,
        Integer = 1,
        Double = 2,
        String = 3,
        Object = 4, ///< one object of the host
        List = 5,   ///< one row, or a cell of one element
        Table = 6,  ///< more than one row
        Empty = 8,  ///< no elements, or not two dimensions
        Unknown = 9 ///< a host value that the library can't use
    };

    virtual ~HvContent();
    ContentType getContentType() const { return type_; }

protected:
    explicit HvContent(ContentType type) : type_(type) {}

private:
    ContentType type_;
};

using HvContentPtr = boost::shared_ptr<HvContent>;

class VELLOX_API BooleanContent : public HvContent {
public:
    explicit BooleanContent(bool value) : HvContent(Boolean), value_(value) {}
    template <class T> explicit BooleanContent(const T*) = delete; ///< a text is no truth value
    bool getValue() const { return value_; }
    static boost::shared_ptr<BooleanContent> cast(const HvContentPtr& content);
    static bool getValue(const HvContentPtr& content);

private:
    bool value_;
};

class VELLOX_API IntegerContent : public HvContent {
public:
    explicit IntegerContent(int value) : HvContent(Integer), value_(value) {}
    int getValue() const { return value_; }
    static boost::shared_ptr<IntegerContent> cast(const HvContentPtr& content);
    static int getValue(const HvContentPtr& content);

private:
    int value_;
};

class VELLOX_API DoubleContent : public HvContent {
public:
    explicit DoubleContent(double value) : HvContent(Double), value_(value) {}
    double getValue() const { return value_; }
    static boost::shared_ptr<DoubleContent> cast(const HvContentPtr& content);
    static double getValue(const HvContentPtr& content);

private:
    double value_;
};

class VELLOX_API StringContent : public HvContent {
public:
    explicit StringContent(std::wstring value) : HvContent(String), value_(std::move(value)) {}
    const std::wstring& getValue() const { return value_; }
    static boost::shared_ptr<StringContent> cast(const HvContentPtr& content);
    static const std::wstring& getValue(const HvContentPtr& content);

private:
    std::wstring value_;
};

class VELLOX_API ListContent : public HvContent {
public:
    /// @throws HvArrayException for an empty pointer
    explicit ListContent(boost::shared_ptr<HvList> value);
    const boost::shared_ptr<HvList>& getValue() const { return value_; }
    static boost::shared_ptr<ListContent> cast(const HvContentPtr& content);
    /// @param wrapObject let a single object count as a list of one
    static boost::shared_ptr<HvList> getValue(const HvContentPtr& content, bool wrapObject = false);
    /// Makes the content of a host value first.
    static boost::shared_ptr<HvList> getValue(const hvArray* value, bool wrapObject);

private:
    boost::shared_ptr<HvList> value_;
};

class VELLOX_API TableContent : public HvContent {
public:
    explicit TableContent(boost::shared_ptr<HvTable> value);
    const boost::shared_ptr<HvTable>& getValue() const { return value_; }
    static boost::shared_ptr<TableContent> cast(const HvContentPtr& content);
    static boost::shared_ptr<HvTable> getValue(const HvContentPtr& content);
    /// Makes the content of a host value first. The flag has no effect.
    static boost::shared_ptr<HvTable> getValue(const hvArray* value, bool wrapObject);

private:
    boost::shared_ptr<HvTable> value_;
};

/// A host value as it is: what is known of it is its class and its shape.
class VELLOX_API DataContent : public HvContent {
public:
    DataContent(boost::shared_ptr<HvData> value, ContentType type);
    const boost::shared_ptr<HvData>& getValue() const { return data_; }
    static boost::shared_ptr<DataContent> cast(const HvContentPtr& content);
    static boost::shared_ptr<HvData> getValue(const HvContentPtr& content);

private:
    boost::shared_ptr<HvData> data_;
};

/// One object, such as a Paragraph, a Picture or a Table.
class VELLOX_API ObjectContent : public DataContent {
public:
    using Interface = boost::shared_ptr<objreg::HostInterface>;

    ObjectContent(boost::shared_ptr<HvData> data, Interface object);
    /// Content of any facade handle, for programs without a host. The content shares the object.
    template <class Facade> explicit ObjectContent(const Facade& handle);

    const Interface& getValue() const { return object_; }
    static boost::shared_ptr<ObjectContent> cast(const HvContentPtr& content);
    static Interface getValue(const HvContentPtr& content);

private:
    template <class Facade> class Handle;

    Interface object_;
};

/// A facade handle where an object of a host would stand.
template <class Facade> class ObjectContent::Handle : public objreg::HostInterface {
public:
    explicit Handle(const Facade& handle) : handle_(boost::make_shared<Facade>(handle)) {}
    boost::shared_ptr<ppt::PPTObject> getProxy() const override { return handle_; }
    void retract() noexcept override {}

private:
    boost::shared_ptr<Facade> handle_;
};

template <class Facade>
ObjectContent::ObjectContent(const Facade& handle)
    : ObjectContent(boost::shared_ptr<HvData>(), boost::make_shared<Handle<Facade>>(handle)) {}

} // namespace vellox

#endif
