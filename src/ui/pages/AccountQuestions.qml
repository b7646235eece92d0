import QtQuick
import Loomstreet.Model

// The questions that come before an account is left or deleted. They lie over the whole window that they are asked in,
// and are made when they are.
Item {
    id: questions

    required property AppModel app

    readonly property AccountRemoval removal: app.makeAccountRemoval(questions)
    // What became of the account, for who was signed in until then.
    readonly property string outcome: removal.outcome
    readonly property bool asking: (signOut.item?.open ?? false) || (removing.item?.open ?? false)
    property Item place: null

    function ask(loader: Loader, sheet: string, properties: var): void {
        place = Window.contentItem
        if (loader.status === Loader.Null)
            loader.setSource(sheet, properties)
        loader.item.open = true
    }
    function askToSignOut(): void { ask(signOut, "SignOutSheet.qml", { auth: app.auth }) }
    function askToDelete(): void { ask(removing, "DeleteAccountSheet.qml", { auth: app.auth, removal: removal }) }
    // The page that asked is shown no longer.
    function withdraw(): void {
        for (const loader of [signOut, removing]) {
            if (loader.item)
                loader.item.open = false
        }
    }

    component Question: Loader {
        id: question

        required property Item place

        parent: place
        anchors.fill: parent
        z: 1

        Connections {
            target: question.item
            function onCloseAsked(): void { question.item.open = false }
        }
    }

    Question {
        id: signOut

        place: questions.place ?? questions
    }
    Question {
        id: removing

        place: questions.place ?? questions
    }
}
