#include "vellox/host/binding/Adapters.h"
#include "vellox/host/binding/BoundClasses.h"

namespace vellox::ppt::hostbind {

namespace {

BoundClass describeMessage() {
    BoundClass bound = describeAbstract<Message>("Message", "Object", "What the library reports.");
    bound.properties = {
        readOnlyProperty<Message, &Message::getText>("Text", "What it says."),
        readOnlyProperty<Message, &Message::getSource>("Source", "The object that it speaks of."),
    };
    bound.properties.back().mayBeEmpty = true;
    bound.methods = {
        Method<Message, std::wstring()>::row<&Message::formatAsHTML>(
            "formatAsHTML", {}, "The same as a paragraph of HTML; nothing is escaped."),
        Method<Message, std::wstring()>::row<&Message::formatAsText>("formatAsText", {},
                                                                     "The source's tag and the text."),
        Method<Message, bool(const MessageFilter&)>::row<&Message::passesFilter>(
            "passesFilter", {"filter"}, "Whether a filter lets the message through."),
    };
    return bound;
}

template <class C> BoundClass describeKind(const char* name, const char* doc) {
    BoundClass bound = describe<C>(name, "Message", doc);
    bound.constructors = {make<C, std::wstring, PPTObject>({"text", "source"})};
    return bound;
}

BoundClass describeFilter() {
    using Filter = MessageFilter;
    BoundClass bound = describe<Filter>("MessageFilter", "Object", "Says what passes to the listeners.");
    bound.constructors = {make<Filter>()};
    bound.properties = {
        optionalProperty<Filter, &Filter::getGlobalFilter, &Filter::setGlobalFilter,
                         &Filter::unsetGlobalFilter>(
            "GlobalFilter", "While set: \"pass\" lets all through, all else nothing."),
        optionalProperty<Filter, &Filter::getSourceFilter, &Filter::setSourceFilter,
                         &Filter::unsetSourceFilter>("SourceFilter",
                                                     "While set, what speaks of other objects is stopped."),
        property<Filter, &Filter::getErrorMessagesPass, &Filter::setErrorMessagesPass>(
            "ErrorMessagesPass", "Whether error messages pass."),
        property<Filter, &Filter::getWarningMessagesPass, &Filter::setWarningMessagesPass>(
            "WarningMessagesPass", "Whether warnings pass."),
        property<Filter, &Filter::getProgressMessagesPass, &Filter::setProgressMessagesPass>(
            "ProgressMessagesPass", "Whether progress messages pass."),
        property<Filter, &Filter::getDebugMessagesPass, &Filter::setDebugMessagesPass>(
            "DebugMessagesPass", "Whether debug messages pass."),
    };
    return bound;
}

BoundClass describeDispatcher() {
    using Dispatcher = MessageDispatcher;
    BoundClass bound =
        describe<Dispatcher>("MessageDispatcher", "Object", "Hands messages to the listeners. There is one.");
    bound.constructors = {{{},
                           [](const Arguments&) -> ObjectPtr {
                               return boost::make_shared<Dispatcher>(Dispatcher::getTheDispatcher());
                           },
                           true}};
    bound.properties = {readOnlyProperty<Dispatcher, &Dispatcher::getMessageFilter>(
        "Filter", "The filter in force; changing it takes effect at once.")};
    BoundMethod getTheDispatcher = {"getTheDispatcher",
                                    {},
                                    SignatureWord("MessageDispatcher"),
                                    [](PPTObject*, const Arguments&) {
                                        return ToHost<Dispatcher>::convert(Dispatcher::getTheDispatcher());
                                    },
                                    "The one dispatcher."};
    getTheDispatcher.isStatic = true;
    bound.methods = {getTheDispatcher, Method<Dispatcher, void(const Message&)>::row<&Dispatcher::dispatch>(
                                           "dispatch", {"message"},
                                           "Lets all listeners hear a message, if it passes the filter.")};
    bound.events = {{"Message", "Fired when a message is appended to the Reporter Message Log",
                     "vellox.ppt.MessageEventData"}};
    return bound;
}

BoundClass describeEventData() {
    BoundClass bound = describe<MessageEventData>("MessageEventData", "Object", "What a listener gets.");
    bound.constructors = {make<MessageEventData, Message>({"message"})};
    bound.properties = {
        readOnlyProperty<MessageEventData, &MessageEventData::getMessage>("Message", "The message.")};
    return bound;
}

} // namespace

std::vector<BoundClass> describeMessages() {
    return {
        describeMessage(),
        describeKind<DebugMessage>("DebugMessage", "What happens inside."),
        describeKind<ErrorMessage>("ErrorMessage", "What went wrong without stopping the work."),
        describeKind<ProgressMessage>("ProgressMessage", "What is being done."),
        describeKind<WarningMessage>("WarningMessage", "What was not done as asked."),
        describeFilter(),
        describeDispatcher(),
        describeEventData(),
    };
}

} // namespace vellox::ppt::hostbind
