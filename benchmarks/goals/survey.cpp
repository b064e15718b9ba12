#include "benchmarks/goals/survey.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <string_view>

namespace tavix {
namespace {

constexpr int kMostLines = 32766;
constexpr int kFigures = 100;
constexpr int kFigurePoints = 100;
constexpr std::wstring_view kKanji =
    L"測量基準点道路境界建物樹木電柱水準三角多角街区公共図根筆界河川鉄道橋梁";

std::wstring NameOf(int number, Naming naming, std::mt19937& random) {
  const auto any = [&](int count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
  };
  const auto kanji = [&] {
    return kKanji[static_cast<std::size_t>(any(static_cast<int>(kKanji.size())))];
  };
  switch (naming) {
    case Naming::kKanji:
      return {kanji(), kanji(), kanji(), kanji()};
    case Naming::kKanjiAndNumber:
      return kanji() + std::to_wstring(number);
    case Naming::kHalfWidthKana: {
      std::wstring name;
      for (int i = 0; i < 4; ++i) name += static_cast<wchar_t>(0xFF76 + any(20));
      return name;
    }
    case Naming::kAmpersand:
      return L"P&" + std::to_wstring(number);
    default:
      return L"P" + std::to_wstring(number);
  }
}

void AddPoints(Survey& survey, int count, Naming naming, std::mt19937& random) {
  std::uniform_real_distribution<double> jitter(-0.3, 0.3);
  const int columns = std::max(1, static_cast<int>(std::ceil(std::sqrt(count))));
  const double cell = kSurveySide / columns;
  for (int i = 0; i < count; ++i) {
    const int row = i / columns;
    const int column = row % 2 == 0 ? i % columns : columns - 1 - i % columns;
    const double north = kSurveySide - (row + 0.5 + jitter(random)) * cell;
    survey.points.push_back({north, (column + 0.5 + jitter(random)) * cell});
    survey.names.push_back(NameOf(i + 1, naming, random));
  }
}

void AddFigures(Survey& survey, std::mt19937& random) {
  std::uniform_real_distribution<double> middle(0.08 * kSurveySide, 0.92 * kSurveySide);
  std::uniform_real_distribution<double> size(0.02 * kSurveySide, 0.07 * kSurveySide);
  for (int i = 0; i < kFigures; ++i) {
    const GroundPoint centre{middle(random), middle(random)};
    const double radius = size(random);
    std::vector<GroundPoint>& figure = survey.figures.emplace_back();
    for (int k = 0; k < kFigurePoints; ++k) {
      const double angle = 6.0 * k / kFigurePoints;
      const double reach = radius * (1.0 + 0.1 * std::sin(9.0 * angle));
      figure.push_back(
          {centre.north + reach * std::cos(angle), centre.east + reach * std::sin(angle)});
    }
  }
}

}  // namespace

Survey MakeSurvey(int points, Naming naming) {
  Survey survey;
  std::mt19937 random(1);
  AddPoints(survey, points, naming, random);
  AddFigures(survey, random);
  survey.lines = std::min(points - 1, kMostLines);
  return survey;
}

Survey MakePoints(int points) {
  Survey survey;
  std::mt19937 random(1);
  AddPoints(survey, points, Naming::kAscii, random);
  return survey;
}

}  // namespace tavix
