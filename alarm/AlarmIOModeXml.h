#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// How a device's alarm inputs and outputs work: the "AlarmIOModeType" document, in the node form.
///
/// The document form writes "AlarmIOMode" and reads "AlarmIOModeType", and so refuses what it wrote. A missing
/// attribute gives 1 in the document form; in the node form it prints a line and gives -1.
class AlarmIOModeXml : public IDomainXml
{
public:
    AlarmIOModeXml();
    ~AlarmIOModeXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmIOMode(const AlarmIOMode& mode) { mode_ = mode; }
    AlarmIOMode& getAlarmIOMode() { return mode_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmIOMode& mode);
    static bool readElement(const TiXmlElement& element, AlarmIOMode& mode);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmIOMode& mode, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmIOMode& mode) const;
    bool createXmlString(const AlarmIOMode& mode, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmIOMode& mode) const;
    /// @}

private:
    AlarmIOMode mode_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
