#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// What holds for all alarms of a device: the "AlarmParam" document.
///
/// A missing attribute resets its field, in both forms; the node reader prints a line for it.
class AlarmParamXml : public IDomainXml
{
public:
    AlarmParamXml();
    ~AlarmParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmParam(const AlarmParam& param) { param_ = param; }
    AlarmParam& getAlarmParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmParam& param);
    static bool readElement(const TiXmlElement& element, AlarmParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmParam& param) const;
    bool createXmlString(const AlarmParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmParam& param) const;
    /// @}

private:
    AlarmParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
