/// @file
/// Views on host values: what a value holds, as content, without copying it. A view doesn't own the value
/// and must not outlive it.
///
/// Without a host, HvList and HvTable are base classes for a program's own lists and tables:
///
///     class Names : public vellox::HvList {
///     public:
///         unsigned int getSize() const override { return 2; }
///         vellox::HvContentPtr getItem(unsigned int i) const override {
///             return boost::make_shared<vellox::StringContent>(i == 0 ? L"first" : L"second");
///         }
///         bool isEmptyItem(unsigned int) const override { return false; }
///     };
///     slide.replace(L"Content", boost::make_shared<vellox::ListContent>(boost::make_shared<Names>()));
///
/// What a host's adapter gives for the values of its language, so that they look alike in every language:
///
/// - A value is read in the same way wherever it stands: alone, in a list, in a list of lists, in an array of any
///   kind, in a column of a table.
/// - A table with named columns is a cell array: first the names as texts, a row for each of their levels, then a row
///   for each of its own. Names of rows are columns in front, if rows have names of several levels; else the user
///   makes them a column. A name that stands for several neighbours is shown with the first of them.
/// - A missing entry is an empty array (0x0), which leaves a list's paragraph or a table's cell without text. What a
///   language has a mark for, such as NaN, NaT or NA, isn't missing but that mark, as the language shows it.
/// - A date, a time and a span of time are texts, the same that the language shows: those of a whole column may have a
///   form of their own, such as days without hours.
/// - A category is its label; so is a value of an enumeration, unless it is a number in its language.
/// - A whole number that no double holds exactly is a text of all its digits, in lists and tables and wherever a text
///   may stand. Any other number is a number of its class.
/// - A truth value is a logical, of which lists and tables show nothing.
/// - What else has a text for users is that text. Only what has none is left to be described (HvData::getDispl()).

#ifndef VELLOX_HOST_VALUES_HVVIEWS_H
#define VELLOX_HOST_VALUES_HVVIEWS_H

#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

#include "vellox/Api.h"
#include "vellox/host/values/HvContent.h"
#include "vellox/host/values/hvArray.h"

namespace vellox {

/// The shape of a host value. A null value has no dimensions and is empty.
class VELLOX_API HvArray {
public:
    explicit HvArray(const hvArray* value) : value_(value) {}
    virtual ~HvArray();

    const hvArray* getHvArray() const { return value_; }
    unsigned int getNDimensions() const { return getNDimensions(value_); }
    static unsigned int getNDimensions(const hvArray* value);
    /// @param i a dimension, from 0
    /// @throws HvArrayException if the value has no such dimension, or none at all
    unsigned int getDimension(unsigned int i) const;
    bool isEmpty() const { return isEmpty(value_); }
    static bool isEmpty(const hvArray* value);
    bool isCellArray() const { return isCellArray(value_); }
    static bool isCellArray(const hvArray* value);

private:
    const hvArray* value_;
};

/// A host value as content. Indices are vectors with one entry for each dimension, from 0.
class VELLOX_API HvCell : public HvArray {
public:
    using Indices = std::vector<unsigned int>;
    using HvArray::HvArray;

    /// A text is a String whatever its shape. Anything else of more than one row is a Table, of more than
    /// one column a List, and a single cell a List too.
    HvContent::ContentType getContentType() const;
    /// Content that matches the type; an empty pointer for Empty.
    HvContentPtr getContent() const;
    /// @{ The same for one cell of a cell array.
    /// @throws HvArrayException for indices that don't fit the value
    HvContent::ContentType getContentType(const Indices& indices) const;
    HvContentPtr getContent(const Indices& indices) const;
    boost::shared_ptr<HvCell> getCell(const Indices& indices) const;
    bool isEmptyCell(const Indices& indices) const;
    /// @}

private:
    void checkIndicesLegitimacy(const Indices& indices) const;
    HvContentPtr makeListContent() const;
    HvContentPtr makeTableContent() const;
};

/// A host value that is only to be described.
class VELLOX_API HvData : public HvCell {
public:
    using HvCell::HvCell;
    /// The host's name of the value's class.
    std::wstring getClassName() const;
    /// Class and shape in words, such as "double [2x3]".
    std::wstring getDispl() const;
};

/// A list of content.
class VELLOX_API HvList : public HvCell {
public:
    HvList() : HvCell(nullptr) {}
    explicit HvList(const hvArray* value) : HvCell(value) {}
    ~HvList() override;

    /// @param i from 0, below getSize()
    /// @return an empty pointer for an item without content
    virtual HvContentPtr getItem(unsigned int i) const = 0;
    virtual bool isEmptyItem(unsigned int i) const = 0;
    virtual unsigned int getSize() const;
};

/// A table of content.
class VELLOX_API HvTable : public HvCell {
public:
    HvTable() : HvCell(nullptr) {}
    explicit HvTable(const hvArray* value) : HvCell(value) {}
    ~HvTable() override;

    /// @param r,c from 0, below getNRows() and getNCols()
    /// @return an empty pointer for an entry without content
    virtual HvContentPtr getEntry(unsigned int r, unsigned int c) const = 0;
    virtual bool isEmptyEntry(unsigned int r, unsigned int c) const = 0;
    virtual unsigned int getNRows() const;
    virtual unsigned int getNCols() const;
};

/// The cells of a host cell array of one row.
class VELLOX_API CellList : public HvList {
public:
    using HvList::HvList;
    HvContentPtr getItem(unsigned int i) const override;
    bool isEmptyItem(unsigned int i) const override;
};

/// The cells of a host cell array.
class VELLOX_API CellTable : public HvTable {
public:
    using HvTable::HvTable;
    HvContentPtr getEntry(unsigned int r, unsigned int c) const override;
    bool isEmptyEntry(unsigned int r, unsigned int c) const override;
};

/// The objects of a host object array of one row.
class VELLOX_API ObjectList : public HvList {
public:
    using HvList::HvList;
    HvContentPtr getItem(unsigned int i) const override;
    bool isEmptyItem(unsigned int) const override { return false; }
};

/// The objects of a host object array.
class VELLOX_API ObjectTable : public HvTable {
public:
    using HvTable::HvTable;
    HvContentPtr getEntry(unsigned int r, unsigned int c) const override;
    bool isEmptyEntry(unsigned int, unsigned int) const override { return false; }
};

/// One element of a numeric or logical array as content.
VELLOX_API HvContentPtr makeElementContent(const bool* element, const BooleanContent*);
VELLOX_API HvContentPtr makeElementContent(const double* element, const DoubleContent*);
/// The fraction is dropped; a number beyond the range of an int stops at its limit.
VELLOX_API HvContentPtr makeElementContent(const double* element, const IntegerContent*);

/// The elements of a numeric or logical array of one row, each as a content of class C.
template <class T, class C> class ArrayList : public HvList {
public:
    ArrayList(const hvArray* value, const T* data) : HvList(value), data_(data) {}
    HvContentPtr getItem(unsigned int i) const override {
        return makeElementContent(data_ + i, static_cast<const C*>(nullptr));
    }
    bool isEmptyItem(unsigned int) const override { return false; }

private:
    const T* data_;
};

/// The elements of a numeric or logical array, each as a content of class C.
template <class T, class C> class ArrayTable : public HvTable {
public:
    ArrayTable(const hvArray* value, const T* data) : HvTable(value), data_(data) {}
    HvContentPtr getEntry(unsigned int r, unsigned int c) const override {
        return makeElementContent(data_ + getHvArray()->getSubscript({r, c}), static_cast<const C*>(nullptr));
    }
    bool isEmptyEntry(unsigned int, unsigned int) const override { return false; }

private:
    const T* data_;
};

/// A list of exactly one object.
class VELLOX_API HvListToObjectContentAdaptor : public HvList {
public:
    HvListToObjectContentAdaptor(boost::shared_ptr<HvData> data, boost::shared_ptr<ObjectContent> object)
        : data_(std::move(data)),
          object_(std::move(object)) {}
    HvContentPtr getItem(unsigned int) const override { return object_; }
    bool isEmptyItem(unsigned int) const override { return false; }
    unsigned int getSize() const override { return 1; }

private:
    boost::shared_ptr<HvData> data_;
    boost::shared_ptr<ObjectContent> object_;
};

} // namespace vellox

#endif
