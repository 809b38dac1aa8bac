// <WritePolicy StoragePolicy="1" RecordLengthMode="2" RecordFileMaxSize="256" RecordFileTime="30" FileNameSuffix="rec"
//              RecordFormatType="3" />

#include "record/WritePolicyXml.h"

#include "core/Frame.h"

WritePolicyXml::WritePolicyXml() = default;

WritePolicyXml::~WritePolicyXml() = default;

void WritePolicyXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool WritePolicyXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool WritePolicyXml::parseXmlString()
{
    return frame::parseRoot(text_, "WritePolicy", document_, node_) && parseXmlNode();
}

bool WritePolicyXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& WritePolicyXml::writeElement(TiXmlNode& parent, const WritePolicy& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "WritePolicy");
    frame::setInt(element, "StoragePolicy", policy.getStoragePolicy());
    frame::setInt(element, "RecordLengthMode", policy.getRecordLengthMode());
    frame::setInt(element, "RecordFileMaxSize", policy.getRecordFileMaxSize());
    frame::setInt(element, "RecordFileTime", policy.getRecordFileTime());
    frame::setText(element, "FileNameSuffix", policy.getFileNameSuffix());
    frame::setInt(element, "RecordFormatType", policy.getRecordFormatType());
    return element;
}

bool WritePolicyXml::readElement(const TiXmlElement& element, WritePolicy& policy)
{
    policy.setStoragePolicy(frame::intOf(element, "StoragePolicy", 0));
    policy.setRecordLengthMode(frame::intOf(element, "RecordLengthMode", 0));
    policy.setRecordFileMaxSize(frame::intOf(element, "RecordFileMaxSize", 0));
    policy.setRecordFileTime(frame::intOf(element, "RecordFileTime", 0));
    policy.setFileNameSuffix(frame::textOf(element, "FileNameSuffix", ""));
    policy.setRecordFormatType(frame::intOf(element, "RecordFormatType", 0));
    return true;
}
