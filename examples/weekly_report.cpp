// The report of a week's runs on three test benches of pumps, on a template of anyone's design.
//
//     weekly_report [output.pptx] [template.pptx]
//
// A template with a slide named "Bench" has its tokens filled, and its charts get the data; of any other, slides are
// made from the layouts.

#include <vellox/vellox.h>

#include <algorithm>
#include <boost/make_shared.hpp>
#include <ctime>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

using namespace vellox::ppt;

namespace {

constexpr wchar_t kFirstDay[] = L"2026-11-16";
constexpr wchar_t kLastDay[] = L"2026-11-20";
constexpr double kHours = 0.2; // that a run takes

struct Run {
    std::wstring day, bench, impeller;
    double flow = 0, head = 0, power = 0;
    bool passed = false;

    double getEfficiency() const { return 9.81 / 3600 * flow * head / power; }
};
using Runs = std::vector<Run>;

Runs readWeek(const std::wstring& path) {
    std::ifstream file(vellox::toUtf8(path));
    Runs runs;
    for (std::string line; std::getline(file, line);) {
        std::vector<std::wstring> fields;
        std::istringstream columns(line);
        for (std::string field; std::getline(columns, field, ',');)
            fields.push_back(vellox::fromUtf8(field));
        if (fields.size() == 7 && fields[0] >= kFirstDay && fields[0] <= kLastDay)
            runs.push_back({fields[0], fields[1], fields[2], std::stod(fields[3]), std::stod(fields[4]),
                            std::stod(fields[5]), fields[6] == L"yes"});
    }
    return runs;
}

/// The runs of each value of one of their fields.
std::map<std::wstring, Runs> groupBy(const Runs& runs, std::wstring Run::*field) {
    std::map<std::wstring, Runs> groups;
    for (const Run& run : runs)
        groups[run.*field].push_back(run);
    return groups;
}

std::wstring nameDay(const std::wstring& date) {
    std::tm time{};
    std::wistringstream(date) >> std::get_time(&time, L"%Y-%m-%d");
    timegm(&time); // finds the day of the week
    std::wostringstream name;
    name << std::put_time(&time, L"%A");
    return name.str();
}

std::wstring round(double number) {
    std::wostringstream text;
    text << std::fixed << std::setprecision(1) << number;
    return text.str();
}

/// What is to be said of runs: a list, and what is below an item is a list in it.
Content describe(const Runs& runs) {
    std::vector<Content> failed;
    double best = 0, highest = 0;
    for (const Run& run : runs) {
        if (!run.passed)
            failed.push_back(nameDay(run.day) + L", impeller " + run.impeller);
        best = std::max(best, run.getEfficiency());
        highest = std::max(highest, run.head);
    }
    return list(
        {std::to_wstring(runs.size()) + L" runs, " + std::to_wstring(failed.size()) + L" beyond the limits",
         failed, L"Highest efficiency " + round(best * 100) + L"%",
         L"Highest head " + round(highest) + L" m"});
}

/// A table whose columns show their numbers and dates in forms.
Table makeTable(const std::vector<std::vector<Content>>& rows, const std::vector<std::wstring>& forms) {
    Table table = tableOf(rows);
    Table::ColSpecs columns;
    for (const std::wstring& form : forms) {
        columns.push_back(boost::make_shared<ColSpec>());
        columns.back()->setNumberFormat(form);
    }
    table.setColSpecs(columns);
    return table;
}

/// The run of the highest efficiency of each impeller.
Runs findBestPoints(const Runs& runs) {
    Runs best;
    for (const auto& [impeller, group] : groupBy(runs, &Run::impeller))
        best.push_back(*std::max_element(group.begin(), group.end(), [](const Run& one, const Run& other) {
            return one.getEfficiency() < other.getEfficiency();
        }));
    return best;
}

std::size_t countOf(const Runs& runs, const std::wstring& impeller) {
    return std::count_if(runs.begin(), runs.end(), [&](const Run& run) { return run.impeller == impeller; });
}

/// From layouts, which most templates have by these names.
void addSlides(Presentation& deck, const Runs& runs) {
    deck.add(L"Title Slide").fill({{L"Title", L"Pump test benches"}, {L"Subtitle", L"Week 47"}});
    deck.add(L"Title and Content").fill({{L"Title", L"The week"}, {L"Content", describe(runs)}});
    for (const auto& [bench, group] : groupBy(runs, &Run::bench))
        deck.add(L"Two Content")
            .fill({{L"Title", L"Bench " + bench},
                   {L"Left Content", Picture(EXAMPLE_DATA L"pump-curve.png")},
                   {L"Right Content", describe(group)}});
    std::vector<std::vector<Content>> best{
        {L"Impeller", L"Runs", L"Flow in m\u00b3/h", L"Head in m", L"Efficiency"}};
    for (const Run& run : findBestPoints(runs))
        best.push_back({run.impeller, countOf(runs, run.impeller), run.flow, run.head, run.getEfficiency()});
    deck.add(L"Title and Table")
        .fill({{L"Title", L"Points of best efficiency"},
               {L"Table", makeTable(best, {L"none", L"d", L".1f", L".1f", L".1%"})}});
    std::vector<std::vector<Content>> all{
        {L"Day", L"Bench", L"Impeller", L"Flow in m\u00b3/h", L"Head in m", L"Within limits"}};
    for (const Run& run : runs)
        all.push_back({run.day, std::stoi(run.bench), run.impeller, run.flow, run.head, run.passed});
    Table table = makeTable(all, {L"%a %d.%m.", L"d", L"none", L".1f", L".1f", L"none"});
    table.setTrueText(L"yes");
    table.setFalseText(L"no");
    PageOptions pages;
    pages.title = L"All runs";
    deck.addPages(L"Title and Table", L"Table", table, pages);
}

/// Slides that are finished but for their tokens. That of a bench is copied for each.
void fillSamples(Presentation& deck, const Runs& runs) {
    const auto sample = as<Slide>(deck.find(L"Bench").front());
    unsigned int place = 3;
    for (const auto& [bench, group] : groupBy(runs, &Run::bench))
        deck.copy(sample, place++)
            .fillTokens({{L"bench", bench},
                         {L"plot", Picture(EXAMPLE_DATA L"pump-curve.png")},
                         {L"remarks", describe(group)}},
                        true);
    deck.remove(sample);

    std::vector<Content> points;
    for (const Run& run : findBestPoints(runs))
        points.push_back(record({{L"impeller", run.impeller},
                                 {L"runs", countOf(runs, run.impeller)},
                                 {L"flow", run.flow},
                                 {L"head", run.head},
                                 {L"efficiency", run.getEfficiency()}}));
    const auto passed = std::count_if(runs.begin(), runs.end(), [](const Run& run) { return run.passed; });
    deck.fillTokens({{L"title", L"Pump test benches"},
                     {L"week", 47},
                     {L"from", kFirstDay},
                     {L"to", kLastDay},
                     {L"runs", runs.size()},
                     {L"passed", double(passed) / double(runs.size())},
                     {L"hours", double(runs.size()) * kHours},
                     {L"points", points}},
                    true);
}

void setCharts(Presentation& deck, const Runs& runs) {
    std::vector<std::wstring> days;
    std::map<std::wstring, std::vector<double>> energy;
    for (const auto& [day, ofDay] : groupBy(runs, &Run::day)) {
        days.push_back(nameDay(day));
        for (const auto& [bench, ofBench] : groupBy(runs, &Run::bench))
            energy[L"Bench " + bench].push_back(0);
        for (const Run& run : ofDay)
            energy[L"Bench " + run.bench].back() += run.power * kHours;
    }
    for (const auto& node : deck.getChildren()) {
        auto slide = as<Slide>(node);
        for (const std::wstring& name : slide.getChartNames())
            slide.chart(name).setData(days, {energy.begin(), energy.end()});
    }
}

void makeReport(const std::wstring& output, int argc, char** argv) {
    auto deck = argc > 2 ? Presentation::forOffice(output, vellox::fromUtf8(argv[2]))
                         : Presentation::forOffice(output);
    const Runs runs = readWeek(EXAMPLE_DATA L"runs.csv");
    deck.open();
    if (deck.find(L"Bench").empty())
        addSlides(deck, runs);
    else
        fillSamples(deck, runs);
    setCharts(deck, runs);
    deck.close();
    for (const auto& finding : deck.getFindings())
        std::cerr << vellox::toUtf8(finding.text) << '\n';
    std::cout << vellox::toUtf8(output) << ": " << deck.getNChildren() << " slides\n";
}

} // namespace

int main(int argc, char** argv) {
    try {
        makeReport(vellox::fromUtf8(argc > 1 ? argv[1] : "weekly-report.pptx"), argc, argv);
    } catch (const hostfx::except::IException& error) {
        std::cerr << "weekly_report: " << error.what() << '\n';
        return 1;
    }
}
