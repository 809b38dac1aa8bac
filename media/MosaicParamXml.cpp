// <MosaicParamList>
//     <MosaicParam Width="16" Height="8" />
// </MosaicParamList>
//
// The peers write both as signed numbers: 4294967295 goes out as -1, and comes back whole.

#include "media/MosaicParamXml.h"

#include "core/Frame.h"

MosaicParamXml::MosaicParamXml() = default;

MosaicParamXml::~MosaicParamXml() = default;

void MosaicParamXml::createXmlNode()
{
    writeElement(document_, mosaic_);
}

bool MosaicParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MosaicParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "MosaicParam", document_, node_) && parseXmlNode();
}

bool MosaicParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, mosaic_);
}

TiXmlElement& MosaicParamXml::writeElement(TiXmlNode& parent, const MosaicParam& mosaic)
{
    TiXmlElement& element = frame::appendElement(parent, "MosaicParam");
    frame::setInt(element, "Width", static_cast<int>(mosaic.getWidth()));
    frame::setInt(element, "Height", static_cast<int>(mosaic.getHeight()));
    return element;
}

bool MosaicParamXml::readElement(const TiXmlElement& element, MosaicParam& mosaic)
{
    mosaic.setWidth(frame::uint32Of(element, "Width", 0));
    mosaic.setHeight(frame::uint32Of(element, "Height", 0));
    return true;
}

bool MosaicParamXml::createDomainXmlNode(const MosaicParam& mosaic, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("Width", static_cast<int>(mosaic.getWidth()));
    node->setProperty("Height", static_cast<int>(mosaic.getHeight()));
    return true;
}

bool MosaicParamXml::createDomainXmlNode(const std::vector<MosaicParam>& mosaics,
                                         SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const MosaicParam& mosaic : mosaics)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "MosaicParam");
        if (!createDomainXmlNode(mosaic, item)) return false;
    }
    return true;
}

bool MosaicParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MosaicParam& mosaic) const
{
    if (!node) return false;

    mosaic.setWidth(frame::uint32Property(node, "Width", 0, "MosaicParamXml::parseDomainXmlNode get Width failed "));
    mosaic.setHeight(frame::uint32Property(node, "Height", 0, "MosaicParamXml::parseDomainXmlNode get Height failed "));
    return true;
}

bool MosaicParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<MosaicParam>& mosaics) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        MosaicParam mosaic;
        if (!parseDomainXmlNode(frame::nodeOf(*item), mosaic)) return false;
        mosaics.push_back(mosaic);
    }
    return true;
}

bool MosaicParamXml::createXmlString(const MosaicParam& mosaic, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("MosaicParam");
    return createDomainXmlNode(mosaic, node) && DomainXmlNode::toString(node, text);
}

bool MosaicParamXml::createXmlString(const std::vector<MosaicParam>& mosaics, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("MosaicParamList");
    return createDomainXmlNode(mosaics, node) && DomainXmlNode::toString(node, text);
}

bool MosaicParamXml::parseXmlString(const std::string& text, MosaicParam& mosaic) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "MosaicParam", node) && parseDomainXmlNode(node, mosaic);
}

bool MosaicParamXml::parseXmlString(const std::string& text, std::vector<MosaicParam>& mosaics) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "MosaicParamList", node) && parseDomainXmlNode(node, mosaics);
}
