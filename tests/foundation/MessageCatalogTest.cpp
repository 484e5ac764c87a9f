#include "vellox/foundation/MessageCatalog.h"

#include "vellox/foundation/Exception.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/HostServices.h"

#include "tests/support/Expect.h"
#include "tests/support/Files.h"

#include <boost/regex.hpp>
#include <filesystem>

using namespace vellox;

namespace {

std::wstring getText(const MsgID& id) {
    return MessageCatalog::get_message(id, std::locale());
}

TEST(MessageCatalog, FillsInTheArguments) {
    EXPECT_EQ(getText(ppt_error::badSlideSubscript(L"7", L"5")),
              L"There is no slide 7: the presentation has 5.");
    EXPECT_EQ(getText(ppt_error::invalidLayoutName(L"100%1%\U0001F600")),
              L"The template has no layout \"100%1%\U0001F600\".");
}

TEST(MessageCatalog, FallsBackToTheIdentifier) {
    EXPECT_EQ(getText(MsgID("vellox:ppt_error", "unheardOf", {L"a", L"b"})),
              L"vellox:ppt_error:unheardOf a b");
    EXPECT_EQ(getText(MsgID("vellox:nowhere", "x", 0)), L"vellox:nowhere:x");
}

// A message catalog with one text.
std::string makeCatalog(const std::string& id, const std::string& text,
                        const std::string& charset = "UTF-8") {
    const std::string strings[] = {"", id, "Content-Type: text/plain; charset=" + charset + "\n", text};
    std::vector<std::uint32_t> head = {0x950412de, 0, 2, 28, 44, 0, 0};
    std::string pool;
    for (const std::string& each : strings) {
        head.push_back(static_cast<std::uint32_t>(each.size()));
        head.push_back(static_cast<std::uint32_t>(60 + pool.size()));
        pool += each + '\0';
    }
    return std::string(reinterpret_cast<const char*>(head.data()), 60) + pool;
}

TEST(MessageCatalog, TakesTextsAsTheyAre) {
    struct Host : host::HostServices {
        std::string getHostRoot() const override { return toUtf8(folder / L"."); }
        test::TempFolder folder;
    } host;
    const std::wstring texts = host.folder / L"resources/messages/en/LC_MESSAGES";
    std::filesystem::create_directories(toUtf8(texts));
    test::writeFile(texts + L"/c.mo", makeCatalog("id", "100% of %1%, 5 %% and %2%%3%"));
    host::setHostServices(&host);
    EXPECT_EQ(getText(MsgID("c", "id", {L"%2%", L"b"})), L"100% of %2%, 5 % and b%3%");
    test::writeFile(texts + L"/latin.mo", makeCatalog("id", "\xfc %1%", "ISO-8859-1"));
    EXPECT_EQ(getText(MsgID("latin", "id", {L"\u0416"})), L"\u00fc \u0416");
    test::writeFile(texts + L"/strange.mo", makeCatalog("id", "a", "no-such-encoding"));
    EXPECT_EQ(getText(MsgID("strange", "id", {L"b"})), L"strange:id b"); // as if it weren't there
    host::setHostServices(nullptr);
}

// The header with the identifiers and the catalogs are kept by hand, side by side.
TEST(MessageCatalog, HasATextForEveryIdentifierWithAllItsArguments) {
    const std::string header = test::readFile(fromUtf8(SOURCE_FOLDER "/vellox/foundation/Identifiers.h"));
    const boost::regex catalogLine(
        "kCatalog\\[\\] = \"([^\"]+)\"|MsgID\\(kCatalog, \"(\\w+)\", (0|\\{[^}]*\\})\\)");
    std::string catalog;
    int count = 0;
    for (boost::sregex_iterator found(header.begin(), header.end(), catalogLine), end; found != end;
         ++found) {
        if ((*found)[1].matched) {
            catalog = (*found)[1];
            continue;
        }
        const std::string arguments = (*found)[3];
        const auto commas = std::count(arguments.begin(), arguments.end(), ',');
        std::vector<std::wstring> values;
        for (long i = 0; arguments != "0" && i <= commas; ++i)
            values.push_back(L"<" + std::to_wstring(i) + L">");
        const std::wstring text = getText(MsgID(catalog, (*found)[2], values));
        for (const std::wstring& value : values)
            EXPECT_NE(text.find(value), std::wstring::npos) << (*found)[2] << ": " << toUtf8(text);
        EXPECT_NE(text.find(L' '), std::wstring::npos) << (*found)[2];
        EXPECT_EQ(text.find(L"vellox:"), std::wstring::npos) << (*found)[2];
        ++count;
    }
    const boost::regex identifier("struct VELLOX_API ");
    EXPECT_EQ(count, std::distance(boost::sregex_iterator(header.begin(), header.end(), identifier), {}));
}

TEST(IdentifiedException, IsCaughtByIdentifierOrAsAny) {
    using BadSlide = hostfx::except::Exception<ppt_error::badSlideSubscript, std::exception>;
    std::exception_ptr kept;
    try {
        raise(ppt_error::badSlideSubscript(L"7", L"5"));
    } catch (const BadSlide& error) {
        EXPECT_EQ(error.getErrorID(), "vellox:ppt_error:badSlideSubscript");
        EXPECT_EQ(error.getMsgID().args, (std::vector<std::wstring>{L"7", L"5"}));
        kept = std::make_exception_ptr(error); // copies outlive what raised them
    }
    try {
        std::rethrow_exception(kept);
    } catch (const std::exception& error) {
        EXPECT_STREQ(error.what(), "There is no slide 7: the presentation has 5.");
    }
    EXPECT_TRUE(ppt_error::invalidAddArg().args.empty());
}

TEST(IdentifiedException, GoesToTheHostBeforeItIsThrown) {
    struct Host : host::HostServices {
        Host() { host::setHostServices(this); }
        ~Host() override { host::setHostServices(nullptr); }
        void reportUserError(const hostfx::except::IUserException& error) override {
            last = error.getErrorID();
        }
        std::string last;
    } host;
    EXPECT_EQ(test::errorOf([] { raise(ppt_error::invalidAddArg()); }), "ppt_error:invalidAddArg");
    EXPECT_EQ(host.last, "vellox:ppt_error:invalidAddArg");
}

} // namespace
