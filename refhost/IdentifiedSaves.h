#pragma once

#include "host/Connection.h"
#include "refhost/PendingSaves.h"

#include <QCryptographicHash>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

class Database;

/// The database as the host lends it to a module, with the one thing that the module's calls cannot tell: what became
/// of a save whose closing call was sent and not answered. Every call goes on as it came. Around a closing call the
/// save gets an identity, which the database writes down with what it saves and PendingSaves keeps on the disk until
/// the answer is there.
///
/// While the outcome is unknown, the next closing call of the same document asks first: what has come and is the same
/// is a success; what has come and is not the same any more is refused, until the editor is opened anew; what has not
/// come is given up, and the save is a new one. Likewise the question whether unsaved work may be taken up.
///
/// A database without the two procedures of an identity is used as it is: then the clerk is told to look.
class IdentifiedSaves : public TConnection {
public:
    /// `folder` is that of the pending saves.
    IdentifiedSaves(Database& database, std::string folder);
    /// Gives up what is still unknown: the clerk was told, and has closed the editor since.
    ~IdentifiedSaves() override;

    TProcedureInfo Describe(const AnsiString& procedure) override;
    TCallResult Execute(const TProcedureCall& call) override;
    TResultTable Query(const AnsiString& sql) override;

private:
    /// A save whose outcome nobody has heard of.
    struct Unknown {
        PendingSave Save;
        bool IsOwn; ///< Of this program; one at most of a place. Else another program left it behind.
    };

    void forgetDeclined();
    void addSent(const TProcedureCall& call);
    /// A digest that tells this user's saves of the document from all others.
    std::string placeOf(std::string_view closing, const TProcedureCall& call) const;
    TCallResult close(std::string_view closing, const TProcedureCall& call);
    TCallResult closeIdentified(SaveMark mark, const TProcedureCall& call);
    TCallResult answerAboutWork(std::string_view closing, const TProcedureCall& question);
    /// Whether this very save has come before. Throws EDatabaseError when only another one of its place has.
    bool cameBefore(const SaveMark& mark);
    /// The first one of the place: this program's own, if there is one.
    std::vector<Unknown>::iterator findUnknown(const std::string& place);
    std::vector<Unknown>::iterator findTheSame(const SaveMark& mark);
    /// Forgets those of the place. The files of those that are not settled stay: their rows may come again, too, or the
    /// work on them be asked about.
    void leaveBehind(const std::string& place);
    /// Asks about each save of the place whose outcome is unknown, also those that other programs left behind. Only
    /// those that have come stay.
    void askAbout(const std::string& place);
    /// What has not come by now never will.
    void giveUpUnknown();
    void settleLast();
    bool hasCome(const SaveMark& mark);
    bool areIdentified();

    Database& database_;
    PendingSaves pending_;
    QCryptographicHash sent_{QCryptographicHash::Sha256}; ///< Of the save under way.
    std::vector<Unknown> unknown_;
    std::optional<PendingSave> declined_; ///< Has come; the module is about to drop the work on it.
    std::optional<bool> areIdentified_;
};

} // namespace refhost
