import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What becomes of the wish to be told that a piece is back.
TextLabel {
    property ProductAlerts alerts

    readonly property string email: alerts?.email ?? ""

    text: email === "" ? qsTranslate("Loomstreet", "Sign in, and we email you once it is back.")
        : alerts?.isRestockSet ? qsTranslate("Loomstreet", "The email goes to %1. Press again if you no longer want it.").arg(Bidi.isolate(email))
                               : qsTranslate("Loomstreet", "The email goes to %1.").arg(Bidi.isolate(email))
    type: Theme.type.small
    color: Theme.muted
    wrapMode: Text.Wrap
    maximumLineCount: 3
    verticalAlignment: Text.AlignVCenter
}
