// <DetectionAreaV2 WidthCellNumber="4" HighCellNumber="2" Data="8A==" DataLength="1" />

#include "alarm/DetectionAreaXmlV2.h"

#include "core/Frame.h"
#include "domain/Base64Codecs.h"

#include <algorithm>
#include <limits>
#include <string>

namespace
{

constexpr int success = 0;
constexpr int tooLarge = -4;

/// How many bytes a map has at most: the peers reserve (bytes + 256) * 4 characters for its text, counted in an int.
constexpr int mostBytes = std::numeric_limits<int>::max() / 4 - 256;

int encode(const DetectionAreaV2& area, std::string& text)
{
    const int length = area.getDataLength();
    if (length > mostBytes) return tooLarge;

    int room = (length + 2) / 3 * 4 + 1;
    text.resize(static_cast<std::size_t>(room));
    const int result = Base64Codecs::base64Encode(area.getData(), length, text.data(), room);
    text.resize(static_cast<std::size_t>(room));
    return result;
}

void decode(const std::string& text, int length, DetectionAreaV2& area)
{
    std::string bytes(text.size(), '\0');
    int decoded = static_cast<int>(bytes.size());
    Base64Codecs::base64Decode(text.c_str(), static_cast<int>(text.size()), bytes.data(), decoded);
    area.setData(bytes.data(), std::min(length, decoded));
}

} // namespace

DetectionAreaXmlV2::DetectionAreaXmlV2() = default;

DetectionAreaXmlV2::~DetectionAreaXmlV2() = default;

int DetectionAreaXmlV2::createXmlNode()
{
    return writeElement(document_, area_);
}

bool DetectionAreaXmlV2::createXmlString()
{
    if (createXmlNode() != success) return false;
    frame::print(document_, text_);
    return true;
}

bool DetectionAreaXmlV2::parseXmlString()
{
    return frame::parseRoot(text_, "DetectionAreaV2", document_, node_) && parseXmlNode();
}

bool DetectionAreaXmlV2::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, area_);
}

int DetectionAreaXmlV2::writeElement(TiXmlNode& parent, const DetectionAreaV2& area)
{
    std::string data;
    const int result = encode(area, data);
    if (result != success) return result;

    TiXmlElement& element = frame::appendElement(parent, "DetectionAreaV2");
    frame::setInt(element, "WidthCellNumber", area.getWidthCellNumber());
    frame::setInt(element, "HighCellNumber", area.getHighCellNumber());
    frame::setText(element, "Data", data);
    frame::setInt(element, "DataLength", area.getDataLength());
    return success;
}

bool DetectionAreaXmlV2::readElement(const TiXmlElement& element, DetectionAreaV2& area)
{
    area.setWidthCellNumber(frame::intOf(element, "WidthCellNumber", 0));
    area.setHighCellNumber(frame::intOf(element, "HighCellNumber", 0));
    decode(frame::textOf(element, "Data", ""), frame::intOf(element, "DataLength", 0), area);
    return true;
}

bool DetectionAreaXmlV2::createDomainXmlNode(const DetectionAreaV2& area, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    std::string data;
    if (encode(area, data) != success) return false;

    node->setProperty("WidthCellNumber", area.getWidthCellNumber());
    node->setProperty("HighCellNumber", area.getHighCellNumber());
    node->setProperty("Data", data);
    node->setProperty("DataLength", area.getDataLength());
    return true;
}

bool DetectionAreaXmlV2::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DetectionAreaV2& area) const
{
    if (!node) return false;

    area.setWidthCellNumber(frame::intProperty(node, "WidthCellNumber", 0));
    area.setHighCellNumber(frame::intProperty(node, "HighCellNumber", 0));
    const std::string data =
        frame::textProperty(node, "Data", "", " DetectionAreaXmlV2::parseDomainXmlNode node = ATTR_DATA failed ");
    const int length = frame::intProperty(node, "DataLength", 0,
                                          " DetectionAreaXmlV2::parseDomainXmlNode node = ATTR_DATALENGTH failed ");
    decode(data, length, area);
    return true;
}

bool DetectionAreaXmlV2::createXmlString(const DetectionAreaV2& area, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DetectionAreaV2");
    return createDomainXmlNode(area, node) && DomainXmlNode::toString(node, text);
}

bool DetectionAreaXmlV2::parseXmlString(const std::string& text, DetectionAreaV2& area) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DetectionAreaV2", node) && parseDomainXmlNode(node, area);
}
