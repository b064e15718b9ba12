// Positions and lengths in a LandXML file.
#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/formats/xml/xml_node.h"
#include "host/survey/ground_geometry.h"

namespace fieldhost {

// An element cannot be used. Thrown where the reason is found, caught where the element is skipped.
// The text is a sentence without full stop.
class LandXmlFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct LandXmlPosition {
  GroundPosition plan;
  std::optional<double> height;  // metres
};

// Knows the file's unit and its points by name. Everything comes out in metres.
class LandXmlGround {
 public:
  // `root` must outlive the object. `metres` in the file's unit of length.
  LandXmlGround(const XmlNode& root, double metres);

  // The position that an element's text gives as northing, easting and perhaps height, or that of
  // the point its pntRef names. Throws LandXmlFault.
  [[nodiscard]] LandXmlPosition PositionOf(const XmlNode& node) const;

  // The positions of a PntList2D or PntList3D, or of a Chain, whose text names points. At least
  // one. Throws LandXmlFault.
  [[nodiscard]] std::vector<LandXmlPosition> PositionsOf(const XmlNode& list) const;

  // A length in an attribute; nothing when there is none. Throws LandXmlFault.
  [[nodiscard]] std::optional<double> Length(const XmlNode& node, std::string_view attribute) const;

 private:
  // A CgPoint. Once asked for: its position, or why it has none.
  struct NamedPoint {
    const XmlNode* node;
    std::optional<LandXmlPosition> position;
    std::string fault;
  };

  void CollectPoints(const XmlNode& node);
  [[nodiscard]] LandXmlPosition PositionNamed(std::string_view name) const;
  [[nodiscard]] LandXmlPosition OwnPosition(const XmlNode& node) const;
  [[nodiscard]] std::vector<LandXmlPosition> NamedPositions(const XmlNode& chain) const;
  [[nodiscard]] LandXmlPosition FromNumbers(const double* numbers, std::size_t count) const;

  double metres_;
  mutable std::unordered_map<std::string, NamedPoint> points_;  // of several the first
};

[[nodiscard]] bool IsPointList(const XmlNode& node);

}  // namespace fieldhost
