#include "host/survey/survey_document.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace fieldhost {
namespace {

LoadedSurvey Points(const std::vector<std::optional<double>>& heights) {
  LoadedSurvey loaded;
  for (const std::optional<double>& height : heights) {
    loaded.survey.points.push_back({0, "p", "", 0, 0, height});
  }
  return loaded;
}

// Four points, a parcel of the first three, an alignment of two elements, a breakline, an outline.
LoadedSurvey Site() {
  LoadedSurvey loaded = Points({1.0, 2.0, std::nullopt, 4.0});
  loaded.survey.parcels = {{"parcel", true, {0, 1, 2}}};
  loaded.survey.lines = {{"a", LineKind::kAlignment, {{}, {}}},
                         {"b", LineKind::kBreakline, {{}}},
                         {"c", LineKind::kParcel, {{}, {}, {}}}};
  loaded.skipped_lines = 3;
  loaded.skipped_elements = 4;
  return loaded;
}

void ExpectCounts(const SurveyCounts& expected, const SurveyCounts& counts) {
  EXPECT_EQ(expected.points, counts.points);
  EXPECT_EQ(expected.parcels, counts.parcels);
  EXPECT_EQ(expected.polylines, counts.polylines);
  EXPECT_EQ(expected.alignment_elements, counts.alignment_elements);
  EXPECT_EQ(expected.skipped_lines, counts.skipped_lines);
  EXPECT_EQ(expected.skipped_elements, counts.skipped_elements);
}

// Writes down what it is called for.
class WritingView : public SurveyView {
 public:
  explicit WritingView(SurveyDocument& document) : document_(document) { document_.Attach(*this); }
  ~WritingView() { document_.Detach(*this); }
  WritingView(const WritingView&) = delete;
  WritingView& operator=(const WritingView&) = delete;

  [[nodiscard]] std::vector<std::string> Taken() { return std::exchange(calls_, {}); }

 private:
  void SurveyAdded(const SurveyAddition& addition) override {
    calls_.push_back("added from " + std::to_string(addition.first_point) + ' ' +
                     std::to_string(addition.first_parcel) + ' ' +
                     std::to_string(addition.first_line));
  }
  void SurveyCleared() override { calls_.emplace_back("cleared"); }
  void PointMoved(int key) override { calls_.push_back("moved " + std::to_string(key)); }
  void FigureDrawn(const DrawnFigure& figure) override {
    calls_.push_back("drawn " + std::to_string(figure.number));
  }
  void FigureDeleted(int number) override { calls_.push_back("deleted " + std::to_string(number)); }

  SurveyDocument& document_;
  std::vector<std::string> calls_;
};

using Calls = std::vector<std::string>;

TEST(SurveyDocument, CountsAllLoadsAndWhatTheySkipped) {
  SurveyDocument document;
  ExpectCounts({}, document.Counts());
  document.Add(Site());
  ExpectCounts({4, 2, 1, 2, 3, 4}, document.Counts());
  document.Add(Site());
  ExpectCounts({8, 4, 2, 4, 6, 8}, document.Counts());
}

TEST(SurveyDocument, RefusedPartsDoNotCountAndRefusedLinesAreSkipped) {
  SurveyDocument document;
  document.Add(Site());
  document.RefusePoint(2);
  ExpectCounts({3, 2, 1, 2, 3, 4}, document.Counts());
  document.RefuseParcel(0);
  ExpectCounts({3, 1, 1, 2, 3, 5}, document.Counts());
  document.RefuseElements(0, 1);  // of the alignment's two
  ExpectCounts({3, 1, 1, 1, 3, 6}, document.Counts());
  document.RefuseElements(1, 1);
  document.RefuseElements(2, 3);
  ExpectCounts({3, 0, 0, 1, 3, 8}, document.Counts());
}

TEST(SurveyDocument, KeysGoOnFromLoadToLoad) {
  SurveyDocument document;
  EXPECT_EQ(nullptr, document.FindPoint(1));
  document.Add(Points({1, 2}));
  document.Add(Points({3}));
  EXPECT_EQ(nullptr, document.FindPoint(0));
  EXPECT_EQ(nullptr, document.FindPoint(-1));
  EXPECT_EQ(nullptr, document.FindPoint(4));
  for (int key = 1; key <= 3; ++key) {
    ASSERT_TRUE(document.FindPoint(key));
    EXPECT_EQ(key, document.FindPoint(key)->height);
    EXPECT_EQ(key, SurveyDocument::KeyOf(SurveyDocument::PlaceOf(key)));
  }
}

TEST(SurveyDocument, VerticesOfALaterLoadAreItsOwnPoints) {
  SurveyDocument document;
  document.Add(Site());
  document.Add(Site());
  ASSERT_EQ(2U, document.Contents().parcels.size());
  EXPECT_EQ((std::vector<std::size_t>{0, 1, 2}), document.Contents().parcels[0].vertices);
  EXPECT_EQ((std::vector<std::size_t>{4, 5, 6}), document.Contents().parcels[1].vertices);
}

TEST(SurveyDocument, ARefusedPointIsUnknownAndCannotBeMoved) {
  SurveyDocument document;
  document.Add(Points({1, 2}));
  document.RefusePoint(1);
  EXPECT_EQ(nullptr, document.FindPoint(1));
  EXPECT_FALSE(document.MovePoint(1, {5, 6}));
  EXPECT_TRUE(document.FindPoint(2));
}

TEST(SurveyDocument, AMovedPointKeepsItsHeight) {
  SurveyDocument document;
  document.Add(Points({1, 2.5}));
  WritingView view(document);
  EXPECT_TRUE(document.MovePoint(2, {5, 6}));
  EXPECT_EQ((GroundPosition{5, 6}), document.FindPoint(2)->Position());
  EXPECT_EQ(2.5, document.FindPoint(2)->height);
  EXPECT_EQ((GroundPosition{0, 0}), document.FindPoint(1)->Position());
  EXPECT_FALSE(document.MovePoint(3, {5, 6}));
  EXPECT_EQ(Calls{"moved 2"}, view.Taken());
}

TEST(SurveyDocument, NoTwoFiguresShareANumber) {
  SurveyDocument document;
  document.Add(Site());
  WritingView view(document);
  std::set<int> numbers = {document.FigureOf(0), document.FigureOf(1), document.FigureOf(2)};
  numbers.insert(document.GiveFigure({40000, 40001}).value());
  document.DrawCircle({{1, 2}, 3});
  document.DrawBoundary({{{0, 0}, {1, 1}}});
  document.Add(Site());
  for (std::size_t line = 3; line < 6; ++line) numbers.insert(document.FigureOf(line));
  EXPECT_EQ(7U, numbers.size());
  EXPECT_EQ((Calls{"drawn 5", "drawn 6", "added from 4 1 3"}), view.Taken());
  EXPECT_FALSE(numbers.contains(5) || numbers.contains(6));
}

TEST(SurveyDocument, NeighboursShareTheFigureOfASide) {
  SurveyDocument document;
  const std::optional<int> figure = document.GiveFigure({7, 9});
  ASSERT_TRUE(figure);
  EXPECT_FALSE(document.GiveFigure({7, 9}));
  EXPECT_FALSE(document.GiveFigure({9, 7}));
  EXPECT_TRUE(document.GiveFigure({7, 8}));
  ASSERT_EQ(2U, document.SideFigures().size());
  EXPECT_EQ(*figure, document.SideFigures().at({7, 9}));
}

TEST(SurveyDocument, TheLastFigureOfAKindIsDeletedFirst) {
  SurveyDocument document;
  EXPECT_FALSE(document.DeleteLastCircle());
  EXPECT_FALSE(document.DeleteLastBoundary());
  document.DrawCircle({{1, 2}, 3});
  document.DrawBoundary({{{0, 0}, {1, 1}}});
  document.DrawCircle({{4, 5}, 6});
  WritingView view(document);
  EXPECT_TRUE(document.DeleteLastCircle());
  EXPECT_TRUE(document.HasCircles());
  EXPECT_TRUE(document.DeleteLastCircle());
  EXPECT_FALSE(document.DeleteLastCircle());
  EXPECT_FALSE(document.HasCircles());
  EXPECT_TRUE(document.HasBoundaries());
  EXPECT_TRUE(document.DeleteLastBoundary());
  EXPECT_FALSE(document.HasBoundaries());
  EXPECT_EQ((Calls{"deleted 3", "deleted 1", "deleted 2"}), view.Taken());
}

TEST(SurveyDocument, ALoadWithoutAnythingToDrawChangesNothing) {
  SurveyDocument document;
  document.Add(Site());
  document.DrawCircle({{1, 2}, 3});
  WritingView view(document);
  LoadedSurvey failed = LoadSurveyFiles(std::vector<std::filesystem::path>{"no such file.csv"});
  EXPECT_EQ(1U, failed.refusals.size());
  document.Add(std::move(failed));
  EXPECT_EQ(Calls{}, view.Taken());
  ExpectCounts({4, 2, 1, 2, 3, 4}, document.Counts());
  EXPECT_TRUE(document.FindPoint(4));
  EXPECT_TRUE(document.HasCircles());
}

TEST(SurveyDocument, ClearForgetsAllAndStartsAgain) {
  SurveyDocument document;
  document.Add(Site());
  document.RefusePoint(1);
  document.RefuseParcel(0);
  document.RefuseElements(0, 1);
  document.DrawCircle({{1, 2}, 3});
  document.DrawBoundary({{{0, 0}, {1, 1}}});
  ASSERT_TRUE(document.GiveFigure({7, 9}));
  WritingView view(document);
  document.Clear();
  ExpectCounts({}, document.Counts());
  EXPECT_EQ(nullptr, document.FindPoint(2));
  EXPECT_FALSE(document.HasCircles() || document.HasBoundaries());
  EXPECT_TRUE(document.SideFigures().empty());
  EXPECT_EQ(0U, document.Heights().points);
  document.Add(Site());
  EXPECT_TRUE(document.FindPoint(1));
  EXPECT_EQ(1, document.FigureOf(0));
  ExpectCounts({4, 2, 1, 2, 3, 4}, document.Counts());
  EXPECT_EQ((Calls{"cleared", "added from 0 0 0"}), view.Taken());
}

TEST(SurveyDocument, EveryAttachedViewFollows) {
  SurveyDocument document;
  WritingView first(document);
  {
    WritingView second(document);
    document.Add(Points({1}));
    EXPECT_EQ(Calls{"added from 0 0 0"}, second.Taken());
  }
  document.Add(Points({1}));
  EXPECT_EQ((Calls{"added from 0 0 0", "added from 1 0 0"}), first.Taken());
}

TEST(HeightRange, CountsOnlyPointsWithAHeight) {
  const struct {
    std::vector<std::optional<double>> heights;
    std::size_t points;
    double lowest;
    double highest;
  } rows[] = {
      {{std::nullopt, std::nullopt}, 0, 0, 0},
      {{12.5, std::nullopt, 10.25, 11}, 3, 10.25, 12.5},
      {{-3, -7}, 2, -7, -3},
      {{0.0}, 1, 0, 0},
  };
  EXPECT_EQ(0U, SurveyDocument().Heights().points);
  for (const auto& row : rows) {
    SurveyDocument document;
    document.Add(Points(row.heights));
    const HeightRange range = document.Heights();
    EXPECT_EQ(row.points, range.points);
    EXPECT_EQ(row.lowest, range.lowest);
    EXPECT_EQ(row.highest, range.highest);
  }
}

TEST(HeightRange, GrowsWithEachSurvey) {
  SurveyDocument document;
  document.Add(Points({5}));
  document.Add(Points({std::nullopt}));
  document.Add(Points({9, 4}));
  const HeightRange range = document.Heights();
  EXPECT_EQ(3U, range.points);
  EXPECT_EQ(4, range.lowest);
  EXPECT_EQ(9, range.highest);
}

}  // namespace
}  // namespace fieldhost
