// <IntelligenceAnalyseStreamRequestCommand CameraId="1" StreamId="2" ComsumerId="3" Type="4" />
//
// "ComsumerId" is the peers' spelling.

#include "commands/IntelligenceAnalyseStreamRequestXml.h"

#include "core/Frame.h"

IntelligenceAnalyseStreamRequestXml::IntelligenceAnalyseStreamRequestXml() = default;

IntelligenceAnalyseStreamRequestXml::~IntelligenceAnalyseStreamRequestXml() = default;

bool IntelligenceAnalyseStreamRequestXml::createXmlString()
{
    const SafePointer<DomainXmlNode> node = frame::makeNode("IntelligenceAnalyseStreamRequestCommand");
    return node->setProperty("CameraId", cameraId_) && node->setProperty("StreamId", streamId_) &&
           node->setProperty("ComsumerId", consumerId_) && node->setProperty("Type", type_) &&
           DomainXmlNode::toString(node, text_);
}

bool IntelligenceAnalyseStreamRequestXml::parseXmlString()
{
    SafePointer<DomainXmlNode> node;
    // The channel tells what the text is; the root is not asked.
    return DomainXmlNode::parse(text_, node) && node->getProperty("CameraId", cameraId_) &&
           node->getProperty("StreamId", streamId_) && node->getProperty("ComsumerId", consumerId_) &&
           node->getProperty("Type", type_);
}
