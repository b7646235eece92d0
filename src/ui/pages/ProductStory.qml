pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What there is to read about a piece, each part behind a row that opens.
Column {
    id: story

    property ProductModel product

    component Paragraph: TextLabel {
        width: story.width
        wrapMode: Text.Wrap
        type: Theme.type.small
        color: Theme.muted
    }

    // A bulleted or plain list of lines.
    component Lines: Disclosure {
        id: lines

        property var texts: []

        width: story.width
        visible: texts.length > 0

        Repeater {
            model: lines.texts

            Paragraph {
                required property string modelData
                text: modelData
            }
        }
    }

    Repeater {
        model: story.product.sections

        Lines {
            required property var modelData
            required property int index

            objectName: "section" + index
            title: modelData.title !== "" ? modelData.title : qsTranslate("Loomstreet", "Description")
            texts: modelData.paragraphs
            expanded: index === 0 && !modelData.isCollapsible
        }
    }
    Lines {
        objectName: "highlights"
        title: qsTranslate("Loomstreet", "Highlights")
        texts: story.product.highlights
    }
    Lines {
        objectName: "composition"
        title: qsTranslate("Loomstreet", "Composition")
        texts: story.product.composition
    }
    Disclosure {
        objectName: "specs"
        width: story.width
        visible: story.product.specs.length > 0
        title: qsTranslate("Loomstreet", "Details")

        Repeater {
            model: story.product.specs

            Row {
                id: fact

                required property var modelData

                width: story.width
                spacing: Theme.space2

                Paragraph {
                    width: Math.round(fact.width * 0.36)
                    text: fact.modelData.key
                }
                Paragraph {
                    width: fact.width - Math.round(fact.width * 0.36) - fact.spacing
                    text: fact.modelData.value
                    color: Theme.ink
                }
            }
        }
    }
    Repeater {
        model: story.product.stories

        Disclosure {
            id: chapter

            required property var modelData
            required property int index

            objectName: "story" + index
            width: story.width
            title: modelData.title !== "" ? modelData.title : qsTranslate("Loomstreet", "Questions and answers")

            Repeater {
                model: chapter.modelData.paragraphs

                Paragraph {
                    required property string modelData
                    text: modelData
                }
            }
            Repeater {
                model: chapter.modelData.questions

                Column {
                    id: question

                    required property var modelData

                    width: story.width

                    Paragraph {
                        text: question.modelData.question
                        color: Theme.ink
                        font.weight: Font.DemiBold
                    }
                    Paragraph { text: question.modelData.answer }
                }
            }
        }
    }
    Hairline { width: story.width }
}
