#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// A type of alarm that a device knows: the "AlarmType" document, and "AlarmTypeList" for several.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it.
class AlarmTypeXml : public IDomainXml
{
public:
    AlarmTypeXml();
    ~AlarmTypeXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmType(const AlarmType& type) { type_ = type; }
    AlarmType& getAlarmType() { return type_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmType& type);
    static bool readElement(const TiXmlElement& element, AlarmType& type);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const AlarmType& type, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<AlarmType>& types, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmType& type) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<AlarmType>& types) const;
    bool createXmlString(const AlarmType& type, std::string& text) const;
    bool createXmlString(const std::vector<AlarmType>& types, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmType& type) const;
    bool parseXmlString(const std::string& text, std::vector<AlarmType>& types) const;
    /// @}

private:
    AlarmType type_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
