pragma Singleton
import QtQuick
import Loomstreet.Theme

// Every colour, size, type style and motion of the application. The shell sets the inputs at the top; all else
// follows from them. Names are those of the design's table of tokens, joined: space.2 is space2, card.gapX is
// cardGapX; colours stand alone.
QtObject {
    id: theme

    // Inputs.
    property string appearance: "system" // or "light", "dark"
    property bool systemDark: false
    property bool reducedMotion: false
    property real textScale: 1.0
    property string language: Qt.uiLanguage // of the window, by its code

    readonly property bool dark: appearance === "dark" || (appearance !== "light" && systemDark)

    // Colours.
    readonly property ColourSet colours: dark ? darkColours : lightColours
    readonly property ColourSet lightColours: LightColours {}
    readonly property ColourSet darkColours: DarkColours {}

    readonly property color frame: colours.frame
    readonly property color paper: colours.paper
    readonly property color surface: colours.surface
    readonly property color sunken: colours.sunken
    readonly property color hover: colours.hover
    readonly property color pressed: colours.pressed
    readonly property color ink: colours.ink
    readonly property color muted: colours.muted
    readonly property color placeholder: colours.placeholder
    readonly property color hairline: colours.hairline
    readonly property color border: colours.border
    readonly property color accent: colours.accent
    readonly property color accentHover: colours.accentHover
    readonly property color accentPressed: colours.accentPressed
    readonly property color accentInk: colours.accentInk
    readonly property color accentTint: colours.accentTint
    readonly property color primary: colours.primary
    readonly property color primaryHover: colours.primaryHover
    readonly property color primaryPressed: colours.primaryPressed
    readonly property color primaryInk: colours.primaryInk
    readonly property color sale: colours.sale
    readonly property color success: colours.success
    readonly property color successTint: colours.successTint
    readonly property color warning: colours.warning
    readonly property color warningTint: colours.warningTint
    readonly property color danger: colours.danger
    readonly property color dangerTint: colours.dangerTint
    readonly property color focus: colours.focus
    readonly property color scrim: colours.scrim
    readonly property color skeleton: colours.skeleton
    readonly property color skeletonSheen: colours.skeletonSheen

    // Opacities.
    readonly property real alphaScrimPanel: dark ? 0.5 : 0.22
    readonly property real alphaScrimSheet: dark ? 0.6 : 0.36
    readonly property real alphaDisabled: 0.42
    readonly property real alphaPictureDim: dark ? 0.93 : 1.0
    readonly property real alphaPictureSoldOut: 0.62

    // Type. Families are those that registerFonts() makes known, with their fallbacks.
    readonly property string fontDisplay: type.title.family
    readonly property string fontText: type.body.family
    readonly property string fontFigures: type.figuresFamily
    readonly property TypeScale type: TypeScale {
        factor: theme.textScale
        language: theme.language
    }
    // What the window says, not what others are called: a name's capitals are those of its own language.
    function inCapitals(words: string): string { return Scripts.inCapitals(words, language) }

    // Space.
    readonly property int space0: 0
    readonly property int spaceHalf: 4
    readonly property int space1: 8
    readonly property int space1_5: 12
    readonly property int space2: 16
    readonly property int space3: 24
    readonly property int space4: 32
    readonly property int space5: 40
    readonly property int space6: 48
    readonly property int space8: 64
    readonly property int space10: 80

    // Corners and lines.
    readonly property int radiusNone: 0
    readonly property int radiusSmall: 3
    readonly property int radiusControl: 6
    readonly property int radiusPanel: 10
    readonly property int radiusWindow: 12
    readonly property int radiusPill: 999
    readonly property int radiusPicture: 2

    readonly property int strokeHairline: 1
    readonly property int strokeControl: 1
    readonly property int strokeSelected: 2
    readonly property int strokeFocus: 2
    readonly property int strokeFocusGap: 2
    readonly property real strokeIcon: 1.5

    // Shadows. A card lies on the page and has none.
    readonly property ShadowStyle shadowCard: null
    readonly property ShadowStyle shadowLifted: ShadowStyle {
        y: 2; blur: 8; color: theme.dark ? Qt.rgba(0, 0, 0, 0.40) : Qt.rgba(58 / 255, 44 / 255, 24 / 255, 0.10)
    }
    readonly property ShadowStyle shadowPopover: ShadowStyle {
        y: 8; blur: 28; color: theme.dark ? Qt.rgba(0, 0, 0, 0.52) : Qt.rgba(58 / 255, 44 / 255, 24 / 255, 0.16)
    }
    readonly property ShadowStyle shadowPanel: ShadowStyle {
        blur: 40; color: theme.dark ? Qt.rgba(0, 0, 0, 0.50) : Qt.rgba(58 / 255, 44 / 255, 24 / 255, 0.16)
    }
    readonly property ShadowStyle shadowWindow: ShadowStyle {
        y: 24; blur: 64; color: theme.dark ? Qt.rgba(0, 0, 0, 0.60) : Qt.rgba(58 / 255, 44 / 255, 24 / 255, 0.26)
    }

    // Motion. With reduced motion everything is immediate and nothing travels.
    readonly property int durationInstant: 0
    readonly property int durationPress: reducedMotion ? 0 : 120
    readonly property int durationHover: reducedMotion ? 0 : 120
    readonly property int durationPictureSwap: reducedMotion ? 0 : 200
    readonly property int durationTab: reducedMotion ? 0 : 160
    readonly property int durationPopover: reducedMotion ? 0 : 160
    readonly property int durationPanel: reducedMotion ? 0 : 220
    readonly property int durationSheet: reducedMotion ? 0 : 220
    readonly property int durationPage: reducedMotion ? 0 : 180
    readonly property int durationBanner: reducedMotion ? 0 : 240
    readonly property int durationSkeletonSweep: reducedMotion ? 0 : 1400

    // In the form that easing.bezierCurve takes: two control points and the end.
    readonly property var curveStandard: [0.2, 0.0, 0.0, 1.0, 1, 1]
    readonly property var curveEnter: [0.0, 0.0, 0.2, 1.0, 1, 1]
    readonly property var curveExit: [0.4, 0.0, 1.0, 1.0, 1, 1]
    readonly property var curveLinear: [0, 0, 1, 1, 1, 1]

    readonly property int distancePanel: reducedMotion ? 0 : 32
    readonly property int distanceSheet: reducedMotion ? 0 : 16
    readonly property int distanceBanner: reducedMotion ? 0 : 24
    readonly property int distancePopover: reducedMotion ? 0 : 4

    // Breakpoints, measured on the window's width less the full sidebar: narrow lies below the first, wide above
    // the second.
    readonly property int breakpointNarrow: 900
    readonly property int breakpointWide: 1400
    readonly property int breakpointSplitPreviewFrom: 1160
    readonly property size breakpointMinimumWindow: Qt.size(720, 560)
    readonly property size breakpointDefaultWindow: Qt.size(1440, 900)

    // Layout.
    readonly property int layoutTabStrip: 40
    readonly property int layoutTopBar: 56
    readonly property int layoutSidebarRegular: 216
    readonly property int layoutSidebarRail: 56
    readonly property int layoutSidebarRow: 32
    readonly property int layoutSidebarHeading: 32
    readonly property int layoutPagePaddingNarrow: 16
    readonly property int layoutPagePaddingBesidePane: 24
    readonly property int layoutPagePaddingRegular: 32
    readonly property int layoutPagePaddingWide: 32
    readonly property int layoutPreviewMinimum: 420
    readonly property int layoutPreviewStandard: 480
    readonly property int layoutPreviewMaximum: 640
    readonly property int layoutPanel: 400
    readonly property int layoutMiraDock: 400
    readonly property size layoutCheckoutWindow: Qt.size(960, 760)
    readonly property size layoutSettingsWindow: Qt.size(880, 704)
    readonly property size layoutVoiceFull: Qt.size(400, 704)
    readonly property size layoutVoiceMini: Qt.size(320, 72)
    readonly property size layoutVoiceFloating: Qt.size(72, 72)
    readonly property size layoutSignInSheet: Qt.size(800, 560)
    readonly property int layoutBuyBox: 400
    readonly property int layoutReadingMeasure: 680
    readonly property int layoutMaximumPage: 1680

    // Cards. Ratios are width over height.
    readonly property real cardPictureRatio: 3 / 4
    readonly property int cardMinimumWidth: 184
    readonly property int cardGapX: 16
    readonly property int cardGapY: 32
    readonly property int cardTextGap: 12
    readonly property int cardRailMinimumWidth: 176
    readonly property size cardRowThumb: Qt.size(72, 96)
    readonly property size cardMessageThumb: Qt.size(60, 80)
    readonly property int cardDashboardHeight: 100
    readonly property int cardPromotionHeight: 240
    readonly property real cardCollectionTileRatio: 4 / 5
    readonly property real cardLookRatio: 1

    // Targets.
    readonly property int targetMinimum: 32
    readonly property int targetIcon: 32
    readonly property int targetControl: 40
    readonly property int targetPrimary: 48
    readonly property int targetRow: 40
    readonly property int targetSidebarRow: 32
    readonly property int targetGapBetween: 4
}
