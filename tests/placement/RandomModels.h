#pragma once

#include "ZoneModel.h"

#include <memory>
#include <random>
#include <vector>

/// What a random model is made of. Shares are of 100.
struct ModelShape {
  int objects = 8;
  int cells = 0;
  int foreign = 1;
  int untiedShare = 20;  // objects without a relation
  int zoneShare = 10;    // tied to the zone or the paper
  int nullShare = 5;     // relation to nothing
  int selfShare = 3;     // tied to itself
  int chainShare = 30;   // tied to the object made before
  int hubShare = 20;     // tied to one of the first three objects
  int adjustShare = 50;  // of all relations
  int repeatShare = 10;  // objects that are listed a second time; null entries as many
  bool circles = true;   // whether ties may lead to objects made later
};

/// A shape that lays weight on one thing or another.
ModelShape RandomShape(std::mt19937& random, int maxObjects, int maxCells);

/// Objects that are tied at random, with what they are tied to.
class RandomObjects {
 public:
  RandomObjects(std::mt19937& random, const ModelShape& shape);
  RandomObjects(const RandomObjects&) = delete;
  RandomObjects& operator=(const RandomObjects&) = delete;

 protected:
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_Random); }
  bool Chance(int share) { return Below(100) < share; }
  CPlaceable* MakeObject();
  void TieAll(const std::vector<CPlaceable*>& objects, CPlaceable* anchor);
  CPlaceable* RandomTarget(const std::vector<CPlaceable*>& objects, std::size_t index, CPlaceable* anchor);

  std::mt19937& m_Random;
  ModelShape m_Shape;
  std::vector<std::unique_ptr<CPlaceable>> m_Foreign;
};

/// A random zone. Frees all it has made.
class RandomZone : public RandomObjects {
 public:
  RandomZone(std::mt19937& random, const ModelShape& shape);
  ~RandomZone();

  OpenZone& Zone() { return m_Zone; }
  /// The objects outside of cells, in the order in which a calculation looks at them; some stand twice.
  std::vector<CPlaceable*> Elements();
  /// In the order of their adding.
  const std::vector<CTableCell*>& Cells() const { return m_Cells; }
  /// Every object there is.
  std::vector<CPlaceable*> AllObjects() const { return m_All; }

 private:
  void Place(CPlaceable* object);

  OpenZone m_Zone;
  std::unique_ptr<CPlaceable> m_pZoneObject = std::make_unique<CPlaceable>();
  std::vector<CTableCell*> m_Cells;
  std::vector<CPlaceable*> m_All;
};

/// A random page. Frees all it has made.
class RandomPage : public RandomObjects {
 public:
  RandomPage(std::mt19937& random, const ModelShape& shape);
  ~RandomPage();

  OpenPage& Page() { return m_Page; }
  std::vector<CPlaceable*> Elements();
  std::vector<CPlaceable*> AllObjects() const { return m_All; }

 private:
  OpenPage m_Page;
  std::vector<CPlaceable*> m_All;
};
