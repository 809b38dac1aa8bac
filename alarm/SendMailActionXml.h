#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// Sends mail: the "SendMailAction" document. Having the element is what sends mail: without the flag nothing is
/// written, and reading sets the flag.
///
/// A missing attribute resets its field.
class SendMailActionXml : public IDomainXml
{
public:
    SendMailActionXml();
    ~SendMailActionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSendMailAction(const SendMailAction& action) { action_ = action; }
    SendMailAction& getSendMailAction() { return action_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    /// Appends nothing if the flag is off.
    static void writeElement(TiXmlNode& parent, const SendMailAction& action);
    static bool readElement(const TiXmlElement& element, SendMailAction& action);
    /// @}

private:
    SendMailAction action_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
