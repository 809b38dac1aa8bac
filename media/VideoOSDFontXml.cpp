// <OSDFontList>
//     <OSDFont CameraID="1" StreamID="2" InverseFlag="true" FontID="3" Red="255" Green="128" Blue="0" Alpha="100"
//              Red1="0" Green1="0" Blue1="0" Alpha1="100" />
// </OSDFontList>
//
// "OSDFontList" is also a container of texts in other documents: the command that carries a text tells which it is.

#include "media/VideoOSDFontXml.h"

#include "core/Frame.h"

namespace
{

void readColors(const SafePointer<DomainXmlNode>& node, VideoOSDFont& font)
{
    font.setFontColorRGB(frame::intProperty(node, "Red", 0), frame::intProperty(node, "Green", 0),
                         frame::intProperty(node, "Blue", 0), frame::intProperty(node, "Alpha", 100),
                         frame::intProperty(node, "Red1", 0), frame::intProperty(node, "Green1", 0),
                         frame::intProperty(node, "Blue1", 0), frame::intProperty(node, "Alpha1", 100));
}

// What a node lacks here ends the reading of its list.
bool readNode(const SafePointer<DomainXmlNode>& node, VideoOSDFont& font)
{
    int number = 0;
    if (!node->getProperty("CameraID", number)) return false;
    font.setCameraID(number);
    if (!node->getProperty("StreamID", number)) return false;
    font.setStreamID(number);
    font.setInverseFlag(frame::flagProperty(node, "InverseFlag", true));
    if (!node->getProperty("FontID", number)) return false;
    font.setFontID(number);
    readColors(node, font);
    return true;
}

// A text without these numbers speaks of the first camera and its first stream.
void readNodeOfText(const SafePointer<DomainXmlNode>& node, VideoOSDFont& font)
{
    font.setCameraID(
        frame::intProperty(node, "CameraID", 1, "VideoOSDFontXml::parseXmlString node = CONST_ATTR_CAMERAID failed "));
    font.setStreamID(
        frame::intProperty(node, "StreamID", 1, "VideoOSDFontXml::parseXmlString node = CONST_ATTR_STREAMID failed "));
    font.setInverseFlag(frame::flagProperty(node, "InverseFlag", true));
    font.setFontID(frame::intProperty(node, "FontID", 0));
    readColors(node, font);
}

} // namespace

VideoOSDFontXml::VideoOSDFontXml() = default;

VideoOSDFontXml::~VideoOSDFontXml() = default;

bool VideoOSDFontXml::createDomainXmlNode(const std::vector<VideoOSDFont>& fonts,
                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const VideoOSDFont& font : fonts)
    {
        int red = 0;
        int green = 0;
        int blue = 0;
        int alpha = 0;
        int red1 = 0;
        int green1 = 0;
        int blue1 = 0;
        int alpha1 = 0;
        font.getFontColorRGB(red, green, blue, alpha, red1, green1, blue1, alpha1);

        SafePointer<DomainXmlNode> item = frame::appendNode(node, "OSDFont");
        item->setProperty("CameraID", font.getCameraID());
        item->setProperty("StreamID", font.getStreamID());
        item->setProperty("InverseFlag", font.getInverseFlag());
        item->setProperty("FontID", font.getFontID());
        item->setProperty("Red", red);
        item->setProperty("Green", green);
        item->setProperty("Blue", blue);
        item->setProperty("Alpha", alpha);
        item->setProperty("Red1", red1);
        item->setProperty("Green1", green1);
        item->setProperty("Blue1", blue1);
        item->setProperty("Alpha1", alpha1);
    }
    return true;
}

bool VideoOSDFontXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<VideoOSDFont>& fonts) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoOSDFont font;
        if (!readNode(frame::nodeOf(*item), font)) return false;
        fonts.push_back(font);
    }
    return true;
}

bool VideoOSDFontXml::createXmlString(const std::vector<VideoOSDFont>& fonts, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("OSDFontList");
    return createDomainXmlNode(fonts, node) && DomainXmlNode::toString(node, text);
}

bool VideoOSDFontXml::parseXmlString(const std::string& text, std::vector<VideoOSDFont>& fonts) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "OSDFontList", node)) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoOSDFont font;
        readNodeOfText(frame::nodeOf(*item), font);
        fonts.push_back(font);
    }
    return true;
}
