// Any calls of the C++ interface in any order, with listeners that do the same: whatever is wrong must be an error.
// The input is the calls. Built twice: object_fuzzer knows the tree alone and is fast, deck_fuzzer opens and closes
// decks besides.

#include "tests/support/DeckTest.h"
#include "vellox/ppt/tree/GroupImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"

#include <vellox/vellox.h>

#include <cstdint>
#include <typeinfo>
#include <utility>

using namespace vellox;
using namespace vellox::ppt;

namespace {

using Node = boost::shared_ptr<PPTNode>;

constexpr std::size_t kMostNodes = 48;
constexpr std::size_t kLargestCopy = 200; // nodes
constexpr int kDeepestAction = 4;

const wchar_t* const kTexts[] = {L"",
                                 L"x",
                                 L"a\x01"
                                 L"b",
                                 L"Title",
                                 L"Content",
                                 L"Same",
                                 L"1in",
                                 L"-2in",
                                 L"2000pt",
                                 L"red",
                                 L"left",
                                 L"top",
                                 L"single",
                                 L"pass",
                                 L"missing.png",
                                 L"Title and Content",
                                 L"Title and Table"};

/// What a listener of the fuzzer throws.
struct ListenerFailure : std::exception {};

/// Anything in a list or a table of content.
class AnyList : public HvList {
public:
    explicit AnyList(std::vector<HvContentPtr> items) : items_(std::move(items)) {}
    HvContentPtr getItem(unsigned int i) const override { return items_[i]; }
    bool isEmptyItem(unsigned int i) const override { return !items_[i]; }
    unsigned int getSize() const override { return static_cast<unsigned int>(items_.size()); }

private:
    std::vector<HvContentPtr> items_;
};

class AnyTable : public HvTable {
public:
    AnyTable(std::vector<HvContentPtr> entries, unsigned int nCols)
        : entries_(std::move(entries)),
          nCols_(nCols) {}
    HvContentPtr getEntry(unsigned int r, unsigned int c) const override { return entries_[r * nCols_ + c]; }
    bool isEmptyEntry(unsigned int r, unsigned int c) const override { return !getEntry(r, c); }
    unsigned int getNRows() const override { return static_cast<unsigned int>(entries_.size()) / nCols_; }
    unsigned int getNCols() const override { return nCols_; }

private:
    std::vector<HvContentPtr> entries_;
    unsigned int nCols_;
};

std::size_t countNodes(const PPTNode& node) {
    std::size_t count = 1;
    for (const Node& child : node.getChildren())
        count += countNodes(*child);
    return count;
}

class Caller {
public:
    Caller(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {
        filter_.setDebugMessagesPass(true);
        listen();
    }
    Caller(const Caller&) = delete;
    Caller& operator=(const Caller&) = delete;
    ~Caller() {
        end_ = next_;                                    // listeners go on hearing, and act no more
        const auto ended = std::exchange(messages_, {}); // listeners hear of what ends with them, and act
        nodes_.clear();
        for (const auto token : tokens_)
            dispatcher_.removeListener(token);
        filter_.setDebugMessagesPass(false);
        filter_.unsetGlobalFilter();
        filter_.unsetSourceFilter();
    }

    void run() {
        while (next_ != end_)
            act();
    }

private:
    // Drawing from the input

    unsigned int draw(std::size_t choices) {
        return next_ == end_ ? 0 : static_cast<unsigned int>(*next_++ % choices);
    }
    bool drawFlag() { return draw(2) == 1; }
    std::wstring drawText() { return kTexts[draw(std::size(kTexts))]; }
    Node drawNode() { return nodes_.empty() ? Node() : nodes_[draw(nodes_.size())]; }
    /// A node of a class, or an empty pointer.
    template <class C> boost::shared_ptr<C> drawA() {
        std::vector<boost::shared_ptr<C>> found;
        for (const Node& node : nodes_)
            if (const auto own = boost::dynamic_pointer_cast<C>(node))
                found.push_back(own);
        return found.empty() ? boost::shared_ptr<C>() : found[draw(found.size())];
    }
    std::vector<HvContentPtr> drawItems(int depth) {
        std::vector<HvContentPtr> items(draw(4));
        for (HvContentPtr& item : items)
            item = drawContent(depth + 1);
        return items;
    }
    HvContentPtr drawContent(int depth = 0) {
        switch (draw(depth < 3 ? 7 : 5)) {
        case 0:
            return {};
        case 1:
            return boost::make_shared<StringContent>(drawText());
        case 2:
            return boost::make_shared<DoubleContent>(draw(10));
        case 3:
            return boost::make_shared<BooleanContent>(drawFlag());
        case 4:
            if (const Node node = drawNode())
                return boost::make_shared<ObjectContent>(*node);
            return {};
        case 5:
            return boost::make_shared<ListContent>(boost::make_shared<AnyList>(drawItems(depth)));
        default: {
            std::vector<HvContentPtr> entries = drawItems(depth);
            entries.resize(entries.size() / 2 * 2);
            return boost::make_shared<TableContent>(boost::make_shared<AnyTable>(entries, 2));
        }
        }
    }
    template <class C> void keep(const C& handle) { keepNode(handle.makeInterface()); }
    void keepNode(const Node& node) {
        if (node && nodes_.size() < kMostNodes)
            nodes_.push_back(node);
    }

    // What is done

    void act() {
        if (depth_ >= kDeepestAction)
            return;
        using Action = void (Caller::*)();
        static constexpr Action kActions[] = {
            &Caller::make,         &Caller::make,         &Caller::makePlaceholder,
            &Caller::addToBox,     &Caller::replaceInBox, &Caller::replaceShape,
            &Caller::appendText,   &Caller::buildTable,   &Caller::useTable,
            &Caller::fillSlide,    &Caller::useSlide,     &Caller::copy,
            &Caller::walk,         &Caller::rename,       &Caller::format,
            &Caller::shareFormats, &Caller::assign,       &Caller::drop,
            &Caller::drop,         &Caller::dropAll,      &Caller::changeListening,
            &Caller::send,
#ifdef VELLOX_FUZZ_DECKS
            &Caller::useDeck,
#endif
        };
        const Action action = kActions[draw(std::size(kActions))];
        ++depth_;
        try {
            (this->*action)();
        } catch (const hostfx::except::IMsgIDException&) {
        } catch (const ListenerFailure&) {
        }
        --depth_;
    }

    void make() {
        switch (draw(12)) {
        case 0:
            return keep(TextBox(drawText()));
        case 1:
            return keep(Paragraph(drawText(), draw(12)));
        case 2:
            return keep(Paragraph(draw(3)));
        case 3:
            return keep(Text(drawText()));
        case 4:
            return keep(ExternalLink(drawText(), drawText()));
        case 5:
            return keep(Table(draw(4)));
        case 6:
            return keep(Table(TableContent::getValue(drawContent())));
        case 7:
            return keep(TableRow());
        case 8:
            return keep(TableEntry(drawText()));
        case 9:
            return keep(ColSpec(drawText()));
        case 10:
            return keep(Picture());
        default:
            return keepNode((new SlideImpl)->makeInterface());
        }
    }

    /// A placeholder, on a slide or in a group as a template has them, or nowhere.
    void makePlaceholder() {
        const boost::shared_ptr<Shape> made[] = {
            boost::make_shared<ContentPlaceholder>(), boost::make_shared<TablePlaceholder>(),
            boost::make_shared<PicturePlaceholder>(), boost::make_shared<BodyPlaceholder>(),
            boost::make_shared<Group>(L"Same")};
        const boost::shared_ptr<Shape> shape = made[draw(std::size(made))];
        shape->setName(drawText());
        keepNode(shape);
        const Node parent = drawFlag() ? Node(drawA<Slide>()) : Node(drawA<Group>());
        if (parent && *parent != *shape && shape->getNodeType() != NodeType::Group)
            implOf<PPTNodeImpl>(*parent)->appendChild(shape);
    }

    void addToBox() {
        const auto box = drawA<BaseTextBox>();
        if (!box)
            return;
        const auto paragraph = drawA<Paragraph>();
        switch (draw(3)) {
        case 0:
            return keep(box->add(drawText()));
        case 1:
            return paragraph ? keep(box->add(*paragraph)) : void();
        default:
            if (const HvContentPtr content = drawContent())
                box->add(content);
        }
    }

    void replaceInBox() {
        const auto box = drawA<BaseTextBox>();
        const auto paragraph = drawA<Paragraph>();
        if (box && paragraph && drawFlag())
            keep(box->replace(*paragraph));
        else if (box)
            keep(box->replace(drawText()));
    }

    void replaceShape() {
        const auto shape = drawA<Shape>();
        const auto table = drawA<Table>();
        const auto picture = drawA<Picture>();
        if (!shape || drawFlag()) {
            if (shape)
                shape->replace(drawContent());
            return;
        }
        if (const auto former = boost::dynamic_pointer_cast<Table>(shape); former && table)
            keep(former->replace(*table));
        if (const auto former = ContentPlaceholder::cast(shape); former && table)
            keep(former->replace(*table));
        if (const auto former = TablePlaceholder::cast(shape); former && table)
            keep(former->replace(*table));
        if (const auto former = PicturePlaceholder::cast(shape); former && picture)
            keep(former->replace(*picture));
        if (const auto former = Picture::cast(shape); former && picture)
            keep(former->replace(*picture));
    }

    void appendText() {
        const auto paragraph = drawA<Paragraph>();
        const auto text = drawA<Text>();
        if (paragraph && text && drawFlag())
            paragraph->append(*text);
        else if (paragraph)
            keep(paragraph->append(drawText()));
        else if (text)
            keep(Paragraph(*text));
    }

    void buildTable() {
        const auto table = drawA<Table>();
        const auto row = drawA<TableRow>();
        const auto entry = drawA<TableEntry>();
        const auto paragraph = drawA<Paragraph>();
        if (table && row && drawFlag())
            table->append(*row);
        if (row && entry && drawFlag())
            row->append(*entry);
        if (entry && paragraph && drawFlag())
            entry->append(*paragraph);
    }

    void useTable() {
        const auto table = drawA<Table>();
        const auto column = drawA<ColSpec>();
        if (!table)
            return;
        table->setStyleName(drawText());
        if (column && drawFlag())
            table->setColSpecs({column, boost::make_shared<ColSpec>(), column});
        if (table->row(draw(3)) && drawFlag())
            keepNode(table->row(0));
        keepNode(table->entry(draw(3), draw(3)));
    }

    void fillSlide() {
        const auto slide = drawA<Slide>();
        if (!slide)
            return;
        if (const auto box = drawA<TextBox>(); box && drawFlag())
            slide->add(*box);
        if (const auto table = drawA<Table>(); table && drawFlag())
            slide->add(*table);
        if (const auto picture = drawA<Picture>(); picture && drawFlag())
            slide->add(*picture);
    }

    void useSlide() {
        const auto slide = drawA<Slide>();
        if (!slide)
            return;
        const auto paragraph = drawA<Paragraph>();
        switch (draw(5)) {
        case 0:
            return slide->add(drawText(), drawText());
        case 1:
            return paragraph ? slide->add(drawText(), *paragraph) : void();
        case 2:
            return slide->replace(drawText(), drawText());
        case 3:
            return paragraph ? slide->replace(drawText(), *paragraph) : void();
        default:
            slide->replace(drawText(), drawContent());
        }
        for (const Node& found : slide->find(drawText()))
            keepNode(found);
    }

    void copy() {
        const Node node = drawNode();
        if (node && node->getNodeType() != NodeType::Presentation && countNodes(*node) <= kLargestCopy)
            keepNode(node->clone());
    }

    void walk() {
        const Node node = drawNode();
        if (!node)
            return;
        keepNode(node->getParent());
        if (node->getNChildren() > 0)
            keepNode(node->getChildren()[draw(node->getNChildren())]);
        keepNode(node->makeInterface());
    }

    void rename() {
        if (const Node node = drawNode()) {
            node->setTag(drawText());
            node->setId(node->getId() + L"x");
        }
        if (const auto shape = drawA<Shape>()) {
            shape->setName(drawText());
            shape->setX(drawText());
        }
    }

    void format() {
        if (const auto paragraph = drawA<Paragraph>()) {
            paragraph->setBold(drawFlag());
            paragraph->setHAlign(drawText());
        }
        if (const auto text = drawA<Text>(); text && drawFlag()) {
            text->setUnderlineStyle(drawText());
            text->unsetFont();
        } else if (text) {
            text->setFont(drawText());
            text->setFontColor(drawText());
        }
        if (const auto column = drawA<ColSpec>())
            column->setWidth(drawText());
    }

    void shareFormats() {
        const auto from = drawA<Element>(), to = drawA<Element>();
        if (from && to)
            to->setStyle(from->getStyle());
    }

    /// Lets a handle stand for another object of its class, also one that the tree holds or that is in use.
    void assign() {
        const Node to = drawNode(), from = drawNode();
        if (!to || !from)
            return;
        PPTNode& target = *to;
        const PPTNode& source = *from;
        if (typeid(target) == typeid(source))
            target = source;
    }

    void drop() {
        if (nodes_.empty())
            return;
        const auto place = nodes_.begin() + draw(nodes_.size());
        const Node dropped = *place; // it ends when it isn't in the list any more
        nodes_.erase(place);
    }

    void dropAll() {
        if (draw(8) == 0) {
            const auto dropped = std::exchange(nodes_, {});
            const auto messages = std::exchange(messages_, {});
        }
    }

#ifdef VELLOX_FUZZ_DECKS
    Presentation makeDeck(const std::wstring& path) {
        Presentation deck(path);
        if (drawFlag())
            deck.setProfile(L"office"); // whose findings listeners hear of in the middle of shapes
        return deck;
    }

    void useDeck() {
        static const test::TempFolder folder;
        const auto deck = drawA<Presentation>();
        const auto slide = drawA<Slide>();
        switch (draw(8)) {
        case 0:
            return draw(8) == 0 ? keep(makeDeck(folder / L"deck.pptx")) : void();
        case 1:
            return deck ? keep(deck->add(drawText())) : void();
        case 2:
            return deck && slide ? keep(deck->add(drawText(), *slide)) : void();
        case 3:
            return deck ? deck->replace(drawText(), drawContent()) : void();
        case 4:
            return deck && slide ? keep(deck->copy(*slide)) : void();
        case 5:
            return deck && slide ? deck->remove(*slide) : void();
        case 6:
            return deck && slide ? deck->move(*slide, draw(4)) : void();
        default:
            if (deck && draw(8) == 0)
                deck->close();
        }
    }
#endif

    // Listening

    void listen() {
        if (tokens_.size() < 3)
            tokens_.push_back(
                dispatcher_.addListener([this](const MessageEventData& event) { hear(event); }));
    }

    void changeListening() {
        filter_.setDebugMessagesPass(draw(4) != 0);
        const Node node = drawNode();
        if (draw(8) == 0 && node)
            filter_.setSourceFilter(*node);
        else
            filter_.unsetSourceFilter();
        if (drawFlag())
            return listen();
        if (!tokens_.empty())
            dispatcher_.removeListener(tokens_.back());
        tokens_.resize(tokens_.empty() ? 0 : tokens_.size() - 1);
    }

    void send() {
        if (const Node node = drawNode())
            dispatcher_.dispatch(WarningMessage(drawText(), *node));
        const auto ended = std::exchange(messages_, {}); // listeners hear of what ends with them, and act
    }

    void hear(const MessageEventData& event) {
        if (next_ == end_)
            return;
        const unsigned int what = draw(8);
        const Message message = event.getMessage();
        const boost::shared_ptr<PPTObject> source = message.getSource();
        const auto life = source ? ObjectAccess::getImpl(*source)->getLife() : PPTObjectImpl::Life::Whole;
        // As a host gets it.
        const Node node =
            source ? boost::dynamic_pointer_cast<PPTNode>(ObjectAccess::getImpl(*source)->makeHandle())
                   : Node();
        if (node && drawFlag()) {
            if (const Node parent = node->getParent())
                parent->getNodeType();
            for (const Node& child : node->getChildren())
                child->getTag();
        }
        if (life != PPTObjectImpl::Life::Ending && what == 1) {
            keepNode(node);
            messages_.push_back(message);
        }
        if (what < 4)
            act();
        // Nothing of an object whose making fails may be kept: beside the library's own handle there are two here.
        const int handles = node ? 3 : 2;
        const bool isKept = source && ObjectAccess::getImpl(*source)->getRefCount() > handles;
        if (what == 4 && (life != PPTObjectImpl::Life::UnderConstruction || !isKept))
            throw ListenerFailure();
    }

    const std::uint8_t* next_;
    const std::uint8_t* end_;
    int depth_ = 0;
    MessageDispatcher dispatcher_ = MessageDispatcher::getTheDispatcher();
    MessageFilter filter_ = dispatcher_.getMessageFilter();
    std::vector<MessageDispatcher::ListenerToken> tokens_;
    std::vector<Node> nodes_;
    std::vector<Message> messages_;
};

/// A failure at an object's end is a warning, which isn't to be printed.
class QuietHost : public host::HostServices {
public:
    void raiseWarning(const MsgID&, const std::wstring&) override {}
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static QuietHost host;
    host::setHostServices(&host);
    Caller(data, size).run();
    return 0;
}
