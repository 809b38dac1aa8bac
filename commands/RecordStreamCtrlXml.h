#pragma once

#include "core/IDomainXml.h"
#include "domain/CommandRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Steers a playback: the "RecordStreamCtrlCommand" document.
///
/// A missing attribute leaves its field. A missing "PlayExceptionList" leaves the failed receivers; one that is there
/// replaces them.
class RecordStreamCtrlXml : public IDomainXml
{
public:
    RecordStreamCtrlXml();
    ~RecordStreamCtrlXml() override;

    /// Kind of the order, as the device numbers it.
    int getCtrlType() const { return ctrlType_; }
    void setCtrlType(int ctrlType) { ctrlType_ = ctrlType; }

    /// Number of the playback, which the answer to its opening gave.
    int getManagerId() const { return managerId_; }
    void setManagerId(int managerId) { managerId_ = managerId; }

    /// First parameter of the order, as its kind takes it. Only the low 32 bits are written, as a signed number; more
    /// is read, up to 53 bits without loss.
    long long getParamer1() const { return paramer1_; }
    void setParamer1(long long paramer1) { paramer1_ = paramer1; }

    /// Second parameter, likewise.
    long long getParamer2() const { return paramer2_; }
    void setParamer2(long long paramer2) { paramer2_ = paramer2; }

    /// Receivers that failed.
    /// @{
    const std::vector<PlayException>& getPlayExceptionList() const { return playExceptionList_; }
    std::vector<PlayException>& getPlayExceptionList() { return playExceptionList_; }
    void setPlayExceptionList(const std::vector<PlayException>& playExceptionList)
    {
        playExceptionList_ = playExceptionList;
    }
    /// @}

    /// @name Numbers of 64 bits
    /// As peers convert them elsewhere; the document needs only the second, to read its parameters. Both are always
    /// true.
    /// @{
    bool Int642Str(const long long& value, std::string& text) const;
    /// By way of a `double`: a fraction is cut off, and of more than 53 significant bits the lowest are lost. What is
    /// no number gives 0.
    bool str2Int64(const std::string& text, long long& value) const;
    /// @}

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    int ctrlType_ = 0;
    int managerId_ = 0;
    long long paramer1_ = 0;
    long long paramer2_ = 0;
    std::vector<PlayException> playExceptionList_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
