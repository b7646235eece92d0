import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The topics where there is no room for them beside the conversation.
Popover {
    id: popover

    required property MiraChatModel mira

    name: qsTranslate("Loomstreet", "Topics")
    padding: Theme.space1_5

    contentItem: MiraTopics {
        implicitWidth: 320 * Theme.textScale
        mira: popover.mira
        onOpened: popover.close()
    }
}
