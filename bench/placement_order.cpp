// How long the order of a zone and of a page takes, for objects that are tied in ways that a report may have.
// The time should grow as the number of objects does.

#include "model/LayoutPage.h"
#include "model/Rectangle.h"
#include "model/ReportZone.h"
#include "model/TableCell.h"
#include "placement/PlaceableRelation.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

namespace {

/// How the objects of a model are tied; an object that is tied to none comes out as tied to itself.
using Ties = std::vector<std::size_t> (*)(std::size_t count);

std::vector<std::size_t> ChainedForward(std::size_t count) {
  std::vector<std::size_t> ties(count);
  for (std::size_t i = 0; i < count; ++i) ties[i] = std::min(i + 1, count - 1);
  return ties;
}

std::vector<std::size_t> ChainedBackward(std::size_t count) {
  std::vector<std::size_t> ties(count);
  for (std::size_t i = 1; i < count; ++i) ties[i] = i - 1;
  return ties;
}

std::vector<std::size_t> Siblings(std::size_t count) { return std::vector<std::size_t>(count, 0); }

// Rows of ten siblings on a chain, with free objects between.
std::vector<std::size_t> Mixed(std::size_t count) {
  std::vector<std::size_t> ties(count);
  for (std::size_t i = 0; i < count; ++i) {
    ties[i] = i % 10 == 9 ? i : (i % 10 == 0 ? i - std::min<std::size_t>(i, 10) : i - i % 10);
  }
  return ties;
}

// One chain whose objects stand in the lists in any order.
std::vector<std::size_t> ChainedAtRandom(std::size_t count) {
  std::vector<std::size_t> chain(count);
  for (std::size_t i = 0; i < count; ++i) chain[i] = i;
  std::mt19937 random(1);
  std::shuffle(chain.begin(), chain.end(), random);
  std::vector<std::size_t> ties(count);
  ties[chain[0]] = chain[0];
  for (std::size_t i = 1; i < count; ++i) ties[chain[i]] = chain[i - 1];
  return ties;
}

std::vector<CPlaceable*> MakeTied(Ties ties, std::size_t count, bool adjustHeight) {
  std::vector<CPlaceable*> objects(count);
  for (CPlaceable*& object : objects) object = new CRectangle;
  const std::vector<std::size_t> references = ties(count);
  for (std::size_t i = 0; i < count; ++i) {
    if (references[i] == i) continue;
    auto* relation = CPlaceableRelation::CreatePlRel(RelationPointUpperLeft, RelationPointUpperLeft, 0, 0,
                                                     objects[references[i]]);
    relation->SetAdjustHeight(adjustHeight);
    objects[i]->SetPlaceableRelation(relation);
  }
  return objects;
}

void Report(benchmark::State& state) {
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * state.range(0));
}

void Zone(benchmark::State& state, Ties ties, bool adjustHeight) {
  const auto objects = MakeTied(ties, static_cast<std::size_t>(state.range(0)), adjustHeight);
  while (state.KeepRunning()) {
    state.PauseTiming();
    auto zone = std::make_unique<CReportZone>();
    for (CPlaceable* object : objects) zone->AddRectangleElement(dynamic_cast<CRectangle*>(object));
    state.ResumeTiming();
    zone->CalculateOrderedElements(true);
    state.PauseTiming();
    for (int i = 0; i < zone->GetRectangleElementCount(); ++i) zone->SetRectangleElementAt(nullptr, i);
    zone.reset();
    state.ResumeTiming();
  }
  for (const CPlaceable* object : objects) delete object;
  Report(state);
}

void Page(benchmark::State& state, Ties ties) {
  const auto objects = MakeTied(ties, static_cast<std::size_t>(state.range(0)), false);
  while (state.KeepRunning()) {
    state.PauseTiming();
    auto page = std::make_unique<CLayoutPage>(nullptr);
    for (CPlaceable* object : objects) page->AddLayoutContent(object);
    state.ResumeTiming();
    page->CalculateOrderedElements();
    state.PauseTiming();
    for (int i = 0; i < page->GetLayoutContentCount(); ++i) page->SetLayoutContentAt(nullptr, i);
    page.reset();
    state.ResumeTiming();
  }
  for (const CPlaceable* object : objects) delete object;
  Report(state);
}

// A table of ten columns whose cells are all tied to one object.
void ZoneOfCells(benchmark::State& state) {
  CRectangle reference;
  while (state.KeepRunning()) {
    state.PauseTiming();
    auto zone = std::make_unique<CReportZone>();
    for (int i = 0; i < state.range(0); ++i) {
      auto cell = std::make_unique<CTableCell>();
      cell->SetTableID(1);
      cell->SetRowIndex(i / 10);
      cell->SetColIndex(i % 10);
      cell->SetPlaceableRelation(
          CPlaceableRelation::CreatePlRel(RelationPointUpperLeft, RelationPointUpperLeft, 0, 0, &reference));
      zone->AddTableCell(cell.release());
    }
    state.ResumeTiming();
    zone->CalculateOrderedElements(true);
    state.PauseTiming();
    zone.reset();
    state.ResumeTiming();
  }
  Report(state);
}

void Sizes(benchmark::internal::Benchmark* bench) {
  bench->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(Zone, Chained, ChainedForward, false)->Apply(Sizes);
BENCHMARK_CAPTURE(Zone, ReverseChained, ChainedBackward, false)->Apply(Sizes);
BENCHMARK_CAPTURE(Zone, Siblings, Siblings, false)->Apply(Sizes);
BENCHMARK_CAPTURE(Zone, Mixed, Mixed, false)->Apply(Sizes);
BENCHMARK_CAPTURE(Zone, ChainedAtRandom, ChainedAtRandom, false)->Apply(Sizes);
BENCHMARK(ZoneOfCells)->Apply(Sizes);
BENCHMARK_CAPTURE(Zone, ChainedAdjustHeight, ChainedForward, true)->Apply(Sizes);
BENCHMARK_CAPTURE(Zone, ReverseChainedAdjustHeight, ChainedBackward, true)->Apply(Sizes);
BENCHMARK_CAPTURE(Zone, SiblingsAdjustHeight, Siblings, true)->Apply(Sizes);
BENCHMARK_CAPTURE(Zone, MixedAdjustHeight, Mixed, true)->Apply(Sizes);
BENCHMARK_CAPTURE(Zone, ChainedAtRandomAdjustHeight, ChainedAtRandom, true)->Apply(Sizes);
BENCHMARK_CAPTURE(Page, Chained, ChainedForward)->Apply(Sizes);
BENCHMARK_CAPTURE(Page, ReverseChained, ChainedBackward)->Apply(Sizes);
BENCHMARK_CAPTURE(Page, Siblings, Siblings)->Apply(Sizes);
BENCHMARK_CAPTURE(Page, Mixed, Mixed)->Apply(Sizes);
BENCHMARK_CAPTURE(Page, ChainedAtRandom, ChainedAtRandom)->Apply(Sizes);

}  // namespace

BENCHMARK_MAIN();
