// The exact decimal on everyday amounts, beside the compiler's _Decimal128 on the same operands.

#include <benchmark/benchmark.h>

#include <array>
#include <string>
#include <vector>

#include "bench/decimal128.h"
#include "core/number_text.h"

namespace {

using namespace zifferon;

// Amounts as they stand in an office's columns; paired with themselves in another order.
constexpr std::array texts = {"12.50",   "3",       "1234.56", "19",    "0.05",     "7.99",      "100",
                              "249.90",  "1.19",    "17.85",   "4",     "99999.99", "0.5",       "12",
                              "365",     "1000000", "33.33",   "2.545", "84.03",    "15.97",     "6",
                              "1499.00", "0.07",    "52.1",    "10.00", "8.25",     "123456.78", "42",
                              "3.14159", "60",      "0.333",   "25.00"};
constexpr std::size_t count = texts.size();

std::vector<Text> wideTexts() {
    std::vector<Text> wide;
    for (const char* text : texts) wide.push_back(fromUtf8(text));
    return wide;
}

std::array<Decimal, count> operands(std::size_t shift) {
    std::array<Decimal, count> values;
    for (std::size_t i = 0; i < count; ++i)
        values[i] = parseDecimal(fromUtf8(texts[(i * 5 + shift) % count]), pointStyle);
    return values;
}

std::array<Decimal128, count> peerOperands(std::size_t shift) {
    std::array<const char*, count> shifted{};
    for (std::size_t i = 0; i < count; ++i) shifted[i] = texts[(i * 5 + shift) % count];
    std::array<Decimal128, count> values{};
    decimal128Parse(shifted.data(), values.data(), count);
    return values;
}

template <class Operation>
void binary(benchmark::State& run, Operation operation) {
    const auto a = operands(0);
    const auto b = operands(7);
    std::array<Decimal, count> results;
    for (auto _ : run) {
        for (std::size_t i = 0; i < count; ++i) results[i] = operation(a[i], b[i]);
        benchmark::DoNotOptimize(results);
        benchmark::ClobberMemory();
    }
    run.SetItemsProcessed(run.iterations() * static_cast<std::int64_t>(count));
}

using PeerOperation = void (*)(const Decimal128*, const Decimal128*, Decimal128*, std::size_t);

void peerBinary(benchmark::State& run, PeerOperation operation) {
    const auto a = peerOperands(0);
    const auto b = peerOperands(7);
    std::array<Decimal128, count> results{};
    for (auto _ : run) {
        operation(a.data(), b.data(), results.data(), count);
        benchmark::DoNotOptimize(results);
        benchmark::ClobberMemory();
    }
    run.SetItemsProcessed(run.iterations() * static_cast<std::int64_t>(count));
}

void parse(benchmark::State& run) {
    const auto wide = wideTexts();
    std::array<Decimal, count> results;
    for (auto _ : run) {
        for (std::size_t i = 0; i < count; ++i) results[i] = parseDecimal(wide[i], pointStyle);
        benchmark::DoNotOptimize(results);
        benchmark::ClobberMemory();
    }
    run.SetItemsProcessed(run.iterations() * static_cast<std::int64_t>(count));
}

void peerParse(benchmark::State& run) {
    std::array<Decimal128, count> results{};
    for (auto _ : run) {
        decimal128Parse(texts.data(), results.data(), count);
        benchmark::DoNotOptimize(results);
        benchmark::ClobberMemory();
    }
    run.SetItemsProcessed(run.iterations() * static_cast<std::int64_t>(count));
}

// Grouped, with as many decimals as the value has; the peer writes two and no groups.
void format(benchmark::State& run) {
    const auto values = operands(0);
    for (auto _ : run) {
        for (const Decimal& value : values) benchmark::DoNotOptimize(maskText(value, pointStyle, 30));
    }
    run.SetItemsProcessed(run.iterations() * static_cast<std::int64_t>(count));
}

void peerFormat(benchmark::State& run) {
    const auto values = peerOperands(0);
    static char results[count][32];
    for (auto _ : run) {
        decimal128Format(values.data(), results, count);
        benchmark::DoNotOptimize(results);
        benchmark::ClobberMemory();
    }
    run.SetItemsProcessed(run.iterations() * static_cast<std::int64_t>(count));
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
