# Which layer may use which. Each row is a folder below src/, then the layers that it may include; what those may
# include, it may include too. The build links by this table, and the test "layers" checks every #include against it.
# The left column (folders not called "ui") links no Widgets.
set(LAYERS
    "framework/core    :"
    "res               : framework/core"
    "resources/streams : framework/core"
    "image/picture     : resources/streams"
    "formats           : image/picture"
    "resources         : image/picture res"
    "archives          : resources"
    "image             : formats archives"
    "preview3d         : image"
    "app               : preview3d"
    "tool/output       : framework/core"
    "tool/pictures     : formats"
    "tool/archives     : preview3d tool/pictures"
    "tool/sheets       : image/picture"
    "tool              : app tool/output tool/sheets tool/pictures tool/archives"
    "framework/ui      : framework/core"
    "image/ui          : image framework/ui"
    "formats/ui        : image framework/ui"
    "archives/ui       : archives framework/ui"
    "preview3d/ui      : preview3d image/ui"
    "app/ui            : app image/ui formats/ui archives/ui preview3d/ui")
