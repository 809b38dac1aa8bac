// <SavePolicy RecordSaveDays="30" />

#include "record/SavePolicyXml.h"

#include "core/Frame.h"

SavePolicyXml::SavePolicyXml() = default;

SavePolicyXml::~SavePolicyXml() = default;

void SavePolicyXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool SavePolicyXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SavePolicyXml::parseXmlString()
{
    return frame::parseRoot(text_, "SavePolicy", document_, node_) && parseXmlNode();
}

bool SavePolicyXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& SavePolicyXml::writeElement(TiXmlNode& parent, const SavePolicy& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "SavePolicy");
    frame::setInt(element, "RecordSaveDays", policy.getRecordSaveDays());
    return element;
}

bool SavePolicyXml::readElement(const TiXmlElement& element, SavePolicy& policy)
{
    policy.setRecordSaveDays(frame::intOf(element, "RecordSaveDays", 0));
    return true;
}
