#include "host/formats/landxml/landxml_reader.h"

#include <optional>
#include <string>

#include "host/formats/field_text.h"
#include "host/formats/landxml/landxml_ground.h"
#include "host/formats/landxml/landxml_walk.h"
#include "host/formats/landxml/length_unit.h"
#include "host/formats/text_encoding.h"
#include "host/formats/xml/xml_node.h"
#include "host/formats/xml/xml_text.h"

namespace fieldhost {
namespace {

// These hold no positions in plan, or such as are not shown. Point lists of profiles and cross
// sections would be taken for lines.
constexpr std::string_view kLeftOut[] = {
    "Profile", "CrossSects", "Definition", "Feature", "GradeModel", "Roadways", "Survey", "Zones",
};

std::string Sentence(const XmlProblem& problem) {
  const std::string line = std::to_string(problem.line);
  switch (problem.fault) {
    case XmlFault::kTooDeep:
      return "is nested too deep at line " + line + "; it is not a LandXML file";
    case XmlFault::kDocumentType:
      return "has a document type at line " + line + ", which may hide anything; export it without";
    case XmlFault::kLongTag:
      return "has a tag of more than 64 KB at line " + line + "; it is not a LandXML file";
    case XmlFault::kNoParser:
      return "cannot be read, for the system's XML parser is missing; repair the system";
    case XmlFault::kNotWellFormed:
      break;
  }
  return "is damaged XML at line " + line + "; export or copy it again";
}

// The unit's name; a file that names none means metres or feet, by its system of units.
std::string UnitName(const XmlNode& root) {
  const XmlNode* const units = root.Child("Units");
  if (!units) return "meter";
  const XmlNode* const imperial = units->Child("Imperial");
  const XmlNode* const system = imperial ? imperial : units->Child("Metric");
  if (!system) return "meter";
  const std::string_view name = Trim(system->Attribute("linearUnit"));
  if (name.empty()) return imperial ? "foot" : "meter";
  return std::string(name);
}

}  // namespace

Survey ReadLandXml(std::string_view bytes, ReadLog& log) {
  const auto refuse = [&](std::string why) {
    log.Refuse(std::move(why));
    return Survey();
  };
  const XmlText text = Utf8XmlText(bytes);
  if (!text.problem.empty()) return refuse(text.problem);
  const XmlTree tree = ReadXmlTree(text.text, kLeftOut);
  if (tree.problem) return refuse(Sentence(*tree.problem));
  if (tree.root.name != "LandXML") {
    return refuse("is XML of another kind (" + Quoted(tree.root.name) + "); choose a LandXML file");
  }
  const std::string unit = UnitName(tree.root);
  const std::optional<double> metres = MetresIn(unit);
  if (!metres) {
    return refuse("measures in " + Quoted(unit) +
                  ", a unit that is not known here; export it in metres");
  }
  return CollectLandXml(tree.root, LandXmlGround(tree.root, *metres), log);
}

}  // namespace fieldhost
