// The exact decimal on everyday amounts, beside the compiler's _Decimal128 on the same operands.

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "bench/decimal128.h"
#include "core/number_text.h"

namespace {

using namespace zifferon;

constexpr std::size_t count = 384;
using Amounts = std::vector<std::string>;

// Amounts as they stand in an office's columns: 12.50, 1234.56, 19, 0.05. Always the same ones for a seed.
Amounts amounts(unsigned seed) {
    std::mt19937 random(seed);
    Amounts texts;
    for (std::size_t i = 0; i < count; ++i) {
        constexpr std::array<std::uint_fast32_t, 5> magnitudes = {1, 20, 200, 2000, 100000};
        const auto whole = random() % magnitudes[random() % magnitudes.size()];
        const std::string cents = std::to_string(100 + random() % 100).substr(1);
        texts.push_back(std::to_string(whole) + (whole != 0 && random() % 3 == 0 ? "" : '.' + cents));
    }
    return texts;
}

// The divisor 0 has no result to measure.
Amounts secondAmounts() {
    Amounts texts = amounts(2);
    for (auto& text : texts) {
        if (text == "0.00") text = "1.19";
    }
    return texts;
}

std::vector<Text> wide(const Amounts& texts) {
    std::vector<Text> result;
    for (const auto& text : texts) result.push_back(fromUtf8(text));
    return result;
}

std::vector<Decimal> operands(const Amounts& texts) {
    std::vector<Decimal> values;
    for (const auto& text : wide(texts)) values.push_back(parseDecimal(text, pointStyle));
    return values;
}

std::vector<const char*> pointers(const Amounts& texts) {
    std::vector<const char*> result;
    for (const auto& text : texts) result.push_back(text.c_str());
    return result;
}

std::vector<Decimal128> peerOperands(const Amounts& texts) {
    std::vector<Decimal128> values(count);
    decimal128Parse(pointers(texts).data(), values.data(), count);
    return values;
}

// Runs `pass` over all operands again and again; the time shown is that of one pass over `count` of them.
template <class Results, class Pass>
void measure(benchmark::State& run, Results& results, Pass pass) {
    for (auto _ : run) {
        pass();
        benchmark::DoNotOptimize(results.data());
        benchmark::ClobberMemory();
    }
    run.counters["each"] = benchmark::Counter(
        static_cast<double>(run.iterations() * static_cast<std::int64_t>(count)),
        static_cast<benchmark::Counter::Flags>(benchmark::Counter::kIsRate | benchmark::Counter::kInvert));
}

template <class Operation>
void binary(benchmark::State& run, Operation operation) {
    const auto a = operands(amounts(1));
    const auto b = operands(secondAmounts());
    std::vector<Decimal> results(count);
    measure(run, results, [&] {
        for (std::size_t i = 0; i < count; ++i) results[i] = operation(a[i], b[i]);
    });
}

using PeerOperation = void (*)(const Decimal128*, const Decimal128*, Decimal128*, std::size_t);

void peerBinary(benchmark::State& run, PeerOperation operation) {
    const auto a = peerOperands(amounts(1));
    const auto b = peerOperands(secondAmounts());
    std::vector<Decimal128> results(count);
    measure(run, results, [&] { operation(a.data(), b.data(), results.data(), count); });
}

void parse(benchmark::State& run) {
    const auto texts = wide(amounts(1));
    std::vector<Decimal> results(count);
    measure(run, results, [&] {
        for (std::size_t i = 0; i < count; ++i) results[i] = parseDecimal(texts[i], pointStyle);
    });
}

void peerParse(benchmark::State& run) {
    const auto texts = amounts(1);
    const auto starts = pointers(texts);
    std::vector<Decimal128> results(count);
    measure(run, results, [&] { decimal128Parse(starts.data(), results.data(), count); });
}

// Grouped, into a text of its own, with as many decimals as the value has; the peer fills a buffer that is
// there already, with two decimals and no groups.
void format(benchmark::State& run) {
    const auto values = operands(amounts(1));
    std::vector<Text> results(count);
    measure(run, results, [&] {
        for (std::size_t i = 0; i < count; ++i) results[i] = maskText(values[i], pointStyle, 30);
    });
}

void peerFormat(benchmark::State& run) {
    const auto values = peerOperands(amounts(1));
    std::vector<char[32]> results(count);
    measure(run, results, [&] { decimal128Format(values.data(), results.data(), count); });
}

}  // namespace

BENCHMARK_CAPTURE(binary, add, [](const Decimal& a, const Decimal& b) { return a + b; });
BENCHMARK_CAPTURE(peerBinary, add, decimal128Add);
BENCHMARK_CAPTURE(binary, multiply, [](const Decimal& a, const Decimal& b) { return a * b; });
BENCHMARK_CAPTURE(peerBinary, multiply, decimal128Multiply);
BENCHMARK_CAPTURE(binary, divide, [](const Decimal& a, const Decimal& b) { return a / b; });
BENCHMARK_CAPTURE(peerBinary, divide, decimal128Divide);
BENCHMARK(parse);
BENCHMARK(peerParse);
BENCHMARK(format);
BENCHMARK(peerFormat);
