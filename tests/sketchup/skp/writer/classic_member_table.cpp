// The layouts of the classic container as a table: every class with its members in the order of the file. Written from
// the description of the container and not from the reader or the writer, so that it is a second opinion on both.
//
// A line is a member: its type, its name, then, if need be,
//   the classes that it may refer to or the one that stands there without a tag,
//   `from N` and `to N`: the layout numbers that have it, of the class itself or `of` another one,
//   `if MEMBER`, `if MEMBER&MASK`, `if MEMBER=VALUE`, `unless MEMBER`: it is there as an earlier member says.
// Layouts that no file since version 6 has are left out.

#include "tests/sketchup/skp/writer/classic_member_specs.h"

std::string_view classic_member_table() {
    return R"(
class file
  str product
  str version
  guid model_id
  str saved_path
  u32 time
  map version_map

class CSketchUpModel
  u32 first_number
  u32 code_page
  u32 product_family              from 18
  u64 next_persistent_id          from 26
  ref thumbnail CDib
  bool renew_thumbnail
  inline behavior CComponentBehavior
  str description
  inline options Options          from 21
  ref properties CAttributeContainer from 21
  ref second_preview CDib         from 21
  ref camera CCamera
  inline rendering CRenderingOptions
  u32 vertex_count
  u32 checked                     from 18
  inline root CComponent
  inline shadows CShadowInfo
  inline page_list CEntity
  list pages CViewPage
  ref active_page CViewPage
  inline axes CSketchCS
  u32*16 sixteen_numbers
  inline late_options Options     to 20
  inline dimension_style CDimensionStyle
  inline text_style CTextStyle
  inline font_manager CEntity
  list fonts CSkFont
  inline line_style_manager CEntity from 29
  list line_styles CCustomLineStyle from 29
  ref background CBackgroundImage from 15
  inline style_manager CEntity
  list styles CSkpStyle
  ref active_style CSkpStyle      if styles
  ref current_style CSkpStyle     if styles
  bool style_changed              if styles
  inline watermark_manager CEntity from 16
  list watermarks CWatermark      from 16
  u32 number_29                   from 20
  bool flag_30                    from 22
  list schemas CSchemaZipFile     from 24
  u32 number_32                   from 27

class Options
  u32 form
  providers providers

class CEntity
  ref attributes CAttributeContainer from 3
  pid persistent_id               from 5

class CDrawingElement
  inline entity CEntity
  ref material CMaterial
  bool hidden
  bool casts_shadows
  bool receives_shadows
  bool soft
  bool smooth
  bool locked
  ref layer CLayer

class CAttributeContainer
  inline entity CEntity
  until_null elements CAttributeNamed|CFaceTextureCoords

class CAttributeNamed
  inline entity CEntity
  u32 first_number
  str name
  values entries
  u32 read_only                   from 1

class CFaceTextureCoords
  inline entity CEntity
  u32 first_number
  f64*9 front_matrix
  v3 front_direction
  f64*9 back_matrix
  v3 back_direction
  array*32 front_pins
  array*32 back_pins
  u32 front_flags
  u32 back_flags

class CVertex
  inline entity CEntity
  v3 position

class CEdge
  inline drawing CDrawingElement
  ref start CVertex
  ref end CVertex
  ref curve CCurve|CArcCurve

class CCurve
  inline entity CEntity
  bool polygon
  u32 edge_count

class CArcCurve
  inline entity CEntity
  bool polygon
  u32 edge_count
  v3 center
  v3 normal
  v3 x_axis
  f64 start_angle
  f64 end_angle
  v3 y_axis

class CEdgeUse
  inline entity CEntity
  ref edge CEdge
  bool reversed
  ref loop CLoop

class CLoop
  inline entity CEntity
  bool outer
  bool convex
  until_null uses CEdgeUse

class CFace
  inline drawing CDrawingElement
  f64*4 plane
  list loops CLoop
  ref back_material CMaterial

class CComponent
  inline drawing CDrawingElement
  inline materials CMaterialManager
  inline layers CLayerManager
  inline definitions CDefinitionList
  list entities any
  inline relationships CRelationshipMap
  ref active_section_plane CSectionPlane

class CMaterialManager
  inline entity CEntity
  list materials CMaterial
  ref current CMaterial

class CLayerManager
  inline entity CEntity
  list layers CLayer
  ref active CLayer               if layers
  inline root_folder CLayerGroup  from 7

class CDefinitionList
  list definitions CComponentDefinition

class CRelationshipMap
  list relationships CRelationship

class CRelationship
  inline entity CEntity
  ref base CFace|CComponentInstance|CGroup|CImage
  ref glued CComponentInstance|CGroup|CImage

class CComponentDefinition
  inline component CComponent
  guid guid
  str name
  str description
  str path
  u32 time
  bool modified
  v3 insertion_point
  inline behavior CComponentBehavior
  u32 kind
  ref thumbnail CThumbnail

class CComponentBehavior
  inline entity CEntity
  bool glues
  bool cuts_opening
  u32 snap_to
  u8 camera_bits                  from 4
  u32 no_scale_mask               from 5

class CComponentInstance
  inline drawing CDrawingElement
  ref definition CComponentDefinition
  f64*13 transform
  str name                        from 4
  guid guid                       from 5

class CGroup
  inline drawing CDrawingElement
  ref definition CComponentDefinition
  f64*13 transform
  str name                        from 4 of CComponentInstance
  guid guid                       from 5 of CComponentInstance

class CImage
  inline drawing CDrawingElement
  ref definition CComponentDefinition
  f64*13 transform
  str name                        from 4 of CComponentInstance
  guid guid                       from 5 of CComponentInstance

class CMaterial
  inline entity CEntity
  str name
  bool textured
  inline texture CTexture         if textured
  bool internal
  rgba color
  str third_string
  u32 type
  u32 colorize
  f64 transparency
  bool use_transparency

class CTexture
  inline entity CEntity
  ref picture CDib
  f64 width
  f64 height
  str file_name
  rgba average_color

class CDib
  u32 format
  bytes content
  u32 quality                     if format=1

class CLayer
  inline entity CEntity
  str name
  bool hidden
  inline material CMaterial
  u32 page_behavior               from 2
  ref line_style CCustomLineStyle from 3

class CLayerGroup
  inline entity CEntity
  str name
  list folders CLayerGroup
  list layers CLayer
  bool hidden                     from 2
  bool expanded                   from 3

class CSectionPlane
  inline drawing CDrawingElement
  f64*4 plane
  str name                        from 3
  str symbol                      from 3

class CConstructionPoint
  inline drawing CDrawingElement
  v3 position
  v3 other_end
  bool has_other_end

class CConstructionLine
  inline drawing CDrawingElement
  v3 point
  v3 direction
  f64 lower                       from 1
  f64 upper                       from 1
  u32 stipple                     from 1

class CConstructionGeometry
  inline drawing CDrawingElement

class CPolyline3d
  inline drawing CDrawingElement
  array*24 points

class PointReference
  u32 kind
  u32 form
  v3 point
  ref entity any
  ref second_entity any
  list path any
  list second_path any

class CText
  inline drawing CDrawingElement
  ref font CSkFont
  f64 screen_x
  f64 screen_y
  inline point PointReference
  v3 leader
  v3 view_direction
  u32 leader_kind
  u32 line_weight
  bool flag_1
  bool flag_2
  u32 arrow
  bool leader_shown
  str text
  bool flag_3
  u32 last_number

class CDimension
  inline drawing CDrawingElement
  str text
  ref font CSkFont                from 1
  bool in_space                   from 1
  u32 arrow                       from 1

class CDimensionLinear
  inline dimension CDimension
  inline first PointReference
  inline second PointReference
  v3 normal
  v3 x_axis
  u32 kind
  f64 y
  f64 x
  u32 text_place                  from 6

class CDimensionRadial
  inline dimension CDimension
  ref edge CEdge
  f64 parameter
  f64 ratio
  bool diameter
  v3 center                       unless edge
  v3 normal                       unless edge
  v3 x_axis                       unless edge
  f64 start_angle                 unless edge
  f64 end_angle                   unless edge
  v3 y_axis                       unless edge

class CSkFont
  inline entity CEntity
  str face
  bool bold
  bool italic
  u32 points
  bool world_size_used            from 1
  f64 world_size                  from 1

class CCamera
  v3 eye
  v3 target
  v3 up
  f64 near
  f64 far
  bool perspective
  f64 field_of_view
  f64 height
  v3 vector
  f64 aspect
  bool fov_is_vertical
  bool flag
  str name
  f64 image_width
  bool two_dimensional
  f64 scale_2d
  f64*2 center_2d

class CThumbnail
  inline entity CEntity
  ref camera CCamera
  ref picture CDib

class CViewPage
  inline entity CEntity
  str name
  str description
  u32 flags
  ref camera CCamera              if flags&1
  inline rendering CRenderingOptions if flags&2
  ref style CSkpStyle             if flags&2
  inline shadows CShadowInfo      if flags&4
  bool shows_shadows              if flags&4
  inline axes CSketchCS           if flags&8
  bool shows_axes                 if flags&8
  list hidden_entities any        if flags&16
  list hidden_layers CLayer       if flags&32
  list section_planes CSectionPlane if flags&64
  bool in_slide_show
  f64 transition
  f64 delay
  ref background CBackgroundImage
  bool shows_background           from 12
  bool has_picture                from 12
  bool has_picture_data           if has_picture
  bytes picture                   if has_picture_data

class CRenderingOptions
  inline entity CEntity
  u32 RenderMode
  bool ModelTransparency
  bool MaterialTransparency
  bool jitter_edges
  bool line_style_edges           from 38
  u32 EdgeDisplayMode
  rgba BackgroundColor
  rgba ForegroundColor
  rgba HighlightColor
  rgba ConstructionColor
  bool DisplayShadows
  bool DisplayInstanceAxes
  bool DisplayColorByLayer
  bool Texture
  u32 EdgeColorMode
  bool ExtendLines
  u32 LineExtension
  bool DrawSilhouettes
  u32 SilhouetteWidth
  bool DrawDepthQue
  u32 DepthQueWidth
  bool DrawLineEnds
  u32 LineEndWidth
  bool DrawProfilesOnly
  bool DrawHidden
  bool DrawHiddenObjects          from 39
  u32 FaceColorMode
  rgba FaceFrontColor
  rgba FaceBackColor
  f64 InactiveFade
  f64 InstanceFade
  bool InactiveHidden
  bool InstanceHidden
  bool DisplayFog
  rgba FogColor
  bool FogUseBkColor
  f64 FogStartDist
  f64 FogEndDist
  u32 fog_hint
  u32 EdgeType
  bool DisplaySketchAxes
  bool DisplayText
  bool DisplayDims
  bool HideConstructionGeometry
  rgba SkyColor
  rgba horizon_color
  rgba GroundColor
  bool DrawHorizon
  bool DrawGround
  bool DrawUnderground
  u32 GroundTransparency
  rgba SectionActiveColor
  rgba SectionInactiveColor
  rgba SectionDefaultCutColor
  u32 SectionCutWidth
  u32 section_display
  rgba SectionDefaultFillColor    from 37
  bool SectionCutFilled           from 37
  u32 transparency_sort
  bool draws_soft_edges
  f64 soft_limit
  bool draws_smooth_edges
  rgba LockedColor
  bool DisplayWatermarks
  f64 xray_opacity                from 35
  bool DrawBackEdges              from 36
  bool photo_background_shown     from 36
  f64 photo_background_opacity    from 36
  bool photo_overlay_shown        from 36
  f64 photo_overlay_opacity       from 36

class CShadowInfo
  inline entity CEntity
  u32 time
  bool daylight_saving
  str city
  str country
  f64 longitude
  f64 latitude
  f64 time_zone
  v3 north
  bool DisplayNorth
  bool DisplayOnAllFaces
  bool DisplayOnGroundPlane
  bool EdgesCastShadows
  u32 light
  u32 dark
  bool UseSunForAllShading

class CSketchCS
  inline drawing CDrawingElement
  v3 origin
  v3 x_axis
  v3 y_axis
  v3 z_axis

class CDimensionStyle
  inline entity CEntity
  u32 number_1
  ref font CSkFont
  bool flag_2
  bool flag_3
  u32 number_4
  u32 number_5
  u32 number_6
  u32 number_7
  u32 number_8
  bool flag_9
  rgba color_10
  bool flag_11
  bool flag_12
  f64 number_13
  bool flag_14
  f64 number_15
  rgba color_16
  rgba color_17
  u32 number_18

class CTextStyle
  inline entity CEntity
  ref font CSkFont
  u32 number_2
  u32 number_3
  bool flag_4
  u32 number_5
  bool flag_6
  rgba color_7
  rgba color_8                    from 5
  ref screen_font CSkFont         from 5

class CSkpStyle
  inline entity CEntity
  guid guid
  str file
  u32 form
  str name
  str description
  style_items items

class SketchyEdges
  u32 form
  f64 number_1
  f64 number_2
  u32 number_3
  bool flag_4
  u32 number_5
  u32 number_6
  array*4 numbers
  list strokes CDib

class CCustomLineStyle
  inline entity CEntity
  inline second_entity CEntity    to 2
  str name
  str dashes
  f64 width
  f64 scale
  f64 number                      to 3

class CWatermark
  inline entity CEntity
  bool flag
  str file
  u32 time
  u32 place
  bool tiled
  bool stretched
  bool keeps_aspect
  bool background
  bool mask
  f64 blend
  f64 scale
  str name
  ref picture CDib

class CBackgroundImage
  inline entity CEntity
  str file
  u32 number
  ref picture CDib
  u32 width
  u32 height
  u32 size
  u32 time
  bool visible
  f64 opacity
  array*24 points
  v3 vector
  f64 number_2
  u32 number_3

class CSchemaZipFile
  str folder
  str name
  bytes content
)";
}
