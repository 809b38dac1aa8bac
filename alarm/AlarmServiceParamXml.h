#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// Where a device reports its alarms: the "AlarmServiceParam" document.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it.
class AlarmServiceParamXml : public IDomainXml
{
public:
    AlarmServiceParamXml();
    ~AlarmServiceParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmServiceParam(const AlarmServiceParam& param) { param_ = param; }
    AlarmServiceParam& getAlarmServiceParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmServiceParam& param);
    static bool readElement(const TiXmlElement& element, AlarmServiceParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmServiceParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmServiceParam& param) const;
    bool createXmlString(const AlarmServiceParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmServiceParam& param) const;
    /// @}

private:
    AlarmServiceParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
