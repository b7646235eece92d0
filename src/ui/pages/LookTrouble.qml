import Loomstreet.Model
import Loomstreet.Theme

// What stands between a look and the cart, or the checkout.
CartNotice {
    property MiraLookModel look: null

    readonly property string failure: look?.failure ?? ""
    readonly property string sizesText: look?.sizesText ?? ""

    objectName: "lookTrouble"
    sentence: failure || sizesText || (look?.soldOutText ?? "")
    iconName: failure === "" && sizesText !== "" ? "ruler" : "warning"
    tone: failure !== "" ? Theme.danger : sizesText !== "" ? Theme.ink : Theme.warning
}
