// The places of the native models below which handlers add. Literals, since a path is written as one text.
#pragma once

#define ZR_BGP_INSTANCE "/bgp/instance"
#define ZR_BGP_AS ZR_BGP_INSTANCE "/instance-as/as"
#define ZR_BGP_FOUR_BYTE_AS ZR_BGP_INSTANCE "/instance-as/four-byte-as"
#define ZR_BGP_DEFAULT_VRF ZR_BGP_FOUR_BYTE_AS "/default-vrf"
#define ZR_BGP_ENTITY ZR_BGP_DEFAULT_VRF "/bgp-entity"
#define ZR_BGP_GLOBAL ZR_BGP_DEFAULT_VRF "/global"
#define ZR_BGP_GLOBAL_AFS ZR_BGP_GLOBAL "/global-afs"

#define ZR_BGP_OPER_INSTANCE "/bgp/instances/instance"
#define ZR_BGP_OPER_DEFAULT_VRF ZR_BGP_OPER_INSTANCE "/instance-active/default-vrf"
