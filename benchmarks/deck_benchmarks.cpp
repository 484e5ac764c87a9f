// Whole decks, from making to file, in one process. The number of items is slides, runs, cells or bytes: a
// cost that grows linearly shows the same items per second on every row of a benchmark.

#include "benchmarks/decks.h"

#include <vellox/vellox.h>

#include <benchmark/benchmark.h>

#include <filesystem>

namespace vellox::bench {

namespace {

std::wstring inTempFolder(const wchar_t* name) {
    return fromUtf8((std::filesystem::temp_directory_path() / toUtf8(name)).string());
}

const std::wstring& getOutput() {
    static const std::wstring path = inTempFolder(L"vellox-bench.pptx");
    return path;
}

void removeOutput() {
    std::filesystem::remove(toUtf8(getOutput()));
}

void textDeck(benchmark::State& state) {
    const auto slides = static_cast<unsigned>(state.range(0));
    for (auto _ : state)
        makeTextDeck(getOutput(), slides);
    state.SetItemsProcessed(state.iterations() * slides);
    removeOutput();
}
BENCHMARK(textDeck)->Arg(5)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void styledRuns(benchmark::State& state) {
    const auto slides = static_cast<unsigned>(state.range(0));
    for (auto _ : state)
        makeStyledDeck(getOutput(), slides, 100);
    state.SetItemsProcessed(state.iterations() * slides * 100);
    removeOutput();
}
BENCHMARK(styledRuns)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void tables(benchmark::State& state) {
    const auto slides = static_cast<unsigned>(state.range(0));
    for (auto _ : state)
        makeTableDeck(getOutput(), slides);
    state.SetItemsProcessed(state.iterations() * slides * 20 * 8);
    removeOutput();
}
BENCHMARK(tables)->Arg(20)->Arg(200)->Unit(benchmark::kMillisecond);

void pictures(benchmark::State& state) {
    const auto slides = static_cast<unsigned>(state.range(0));
    const std::wstring image = inTempFolder(L"vellox-bench.png");
    writePng(image, 300000, 1);
    for (auto _ : state)
        makePictureDeck(getOutput(), slides, {image});
    state.SetBytesProcessed(state.iterations() * slides * 300000);
    std::filesystem::remove(toUtf8(image));
    removeOutput();
}
BENCHMARK(pictures)->Arg(20)->Arg(200)->Unit(benchmark::kMillisecond);

void openSlides(benchmark::State& state) {
    const auto slides = static_cast<unsigned>(state.range(0));
    const std::wstring made = inTempFolder(L"vellox-bench-template.pptx");
    makeTextDeck(made, slides);
    for (auto _ : state)
        openDeck(getOutput(), made);
    state.SetItemsProcessed(state.iterations() * slides);
    std::filesystem::remove(toUtf8(made));
    removeOutput();
}
BENCHMARK(openSlides)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond);

void openMasterShapes(benchmark::State& state) {
    const auto shapes = static_cast<unsigned>(state.range(0));
    const std::wstring made = inTempFolder(L"vellox-bench-template.pptx");
    writeHeavyMaster(made, shapes);
    for (auto _ : state)
        openDeck(getOutput(), made);
    state.SetItemsProcessed(state.iterations() * shapes);
    std::filesystem::remove(toUtf8(made));
    removeOutput();
}
BENCHMARK(openMasterShapes)->Arg(400)->Arg(4000)->Unit(benchmark::kMillisecond);

// What the pictures' bytes cost by themselves.
void copyOfPictures(benchmark::State& state) {
    const std::wstring image = inTempFolder(L"vellox-bench.png");
    writePng(image, 300000, 1);
    for (auto _ : state)
        for (int i = 0; i < 200; ++i)
            std::filesystem::copy_file(toUtf8(image), toUtf8(getOutput()),
                                       std::filesystem::copy_options::overwrite_existing);
    state.SetBytesProcessed(state.iterations() * 200 * 300000);
    std::filesystem::remove(toUtf8(image));
    removeOutput();
}
BENCHMARK(copyOfPictures)->Unit(benchmark::kMillisecond);

void tokens(benchmark::State& state) {
    constexpr unsigned kTokensPerSlide = 10;
    const auto slides = static_cast<unsigned>(state.range(0));
    const std::wstring source = inTempFolder(L"vellox-bench-tokens.pptx");
    writeTokenTemplate(source, slides, kTokensPerSlide);
    for (auto _ : state)
        fillTokenDeck(getOutput(), source, kTokensPerSlide);
    state.SetItemsProcessed(state.iterations() * slides * kTokensPerSlide);
    std::filesystem::remove(toUtf8(source));
    removeOutput();
}
BENCHMARK(tokens)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void copies(benchmark::State& state) {
    const auto slides = static_cast<unsigned>(state.range(0));
    const std::wstring source = inTempFolder(L"vellox-bench-sample.pptx");
    writeTokenTemplate(source, 1, 10);
    for (auto _ : state)
        copySlides(getOutput(), source, slides);
    state.SetItemsProcessed(state.iterations() * slides);
    std::filesystem::remove(toUtf8(source));
    removeOutput();
}
BENCHMARK(copies)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace vellox::bench

BENCHMARK_MAIN();
