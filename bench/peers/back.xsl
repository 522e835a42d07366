<?xml version="1.0"?>
<!-- From the native model's neighbors to OpenConfig: each block twice, as `config` and as `state`. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"
    xmlns="http://openconfig.net/yang/bgp"
    xmlns:zr="http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg" exclude-result-prefixes="zr">

  <xsl:template match="/zr:bgp">
    <bgp>
      <neighbors>
        <xsl:apply-templates
            select="zr:instance/zr:instance-as/zr:four-byte-as/zr:default-vrf/zr:bgp-entity/zr:neighbors/zr:neighbor"/>
      </neighbors>
    </bgp>
  </xsl:template>

  <xsl:template match="zr:neighbor">
    <neighbor>
      <neighbor-address><xsl:value-of select="zr:neighbor-address"/></neighbor-address>
      <config><xsl:call-template name="own"/></config>
      <state><xsl:call-template name="own"/></state>
      <transport>
        <config><xsl:call-template name="transport"/></config>
        <state><xsl:call-template name="transport"/></state>
      </transport>
      <xsl:if test="zr:ebgp-multihop">
        <ebgp-multihop>
          <config><xsl:call-template name="multihop"/></config>
          <state><xsl:call-template name="multihop"/></state>
        </ebgp-multihop>
      </xsl:if>
      <timers>
        <config><xsl:call-template name="timers"/></config>
        <state><xsl:call-template name="timers"/></state>
      </timers>
      <graceful-restart>
        <config><xsl:call-template name="restart"/></config>
        <state><xsl:call-template name="restart"/></state>
      </graceful-restart>
      <xsl:apply-templates select="zr:neighbor-afs"/>
    </neighbor>
  </xsl:template>

  <xsl:template name="own">
    <xsl:apply-templates select="zr:neighbor-address|zr:remote-as|zr:local-as|zr:password|zr:description"/>
    <xsl:apply-templates select="zr:neighbor-group-add-member"/>
  </xsl:template>

  <xsl:template match="zr:neighbor-address">
    <neighbor-address><xsl:value-of select="."/></neighbor-address>
  </xsl:template>

  <xsl:template match="zr:remote-as">
    <peer-as><xsl:value-of select="zr:as-yy"/></peer-as>
  </xsl:template>

  <xsl:template match="zr:local-as">
    <local-as><xsl:value-of select="zr:as-yy"/></local-as>
  </xsl:template>

  <xsl:template match="zr:password">
    <auth-password><xsl:value-of select="zr:password"/></auth-password>
  </xsl:template>

  <xsl:template match="zr:description">
    <description><xsl:value-of select="."/></description>
  </xsl:template>

  <xsl:template match="zr:neighbor-group-add-member">
    <peer-group><xsl:value-of select="."/></peer-group>
  </xsl:template>

  <xsl:template name="transport">
    <xsl:apply-templates select="zr:session-open-mode|zr:tcpmss|zr:local-address"/>
  </xsl:template>

  <xsl:template match="zr:session-open-mode">
    <passive-mode><xsl:value-of select=". = 'passive-only'"/></passive-mode>
  </xsl:template>

  <xsl:template match="zr:tcpmss">
    <tcp-mss><xsl:value-of select="zr:mss"/></tcp-mss>
  </xsl:template>

  <xsl:template match="zr:local-address">
    <local-address><xsl:value-of select="zr:local-ip-address"/></local-address>
  </xsl:template>

  <xsl:template name="multihop">
    <enabled>true</enabled>
    <multihop-ttl><xsl:value-of select="zr:ebgp-multihop/zr:max-hop-count"/></multihop-ttl>
  </xsl:template>

  <xsl:template name="timers">
    <xsl:for-each select="zr:timers/zr:keepalive-interval">
      <keepalive-interval><xsl:value-of select="."/></keepalive-interval>
    </xsl:for-each>
    <xsl:for-each select="zr:timers/zr:hold-time"><hold-time><xsl:value-of select="."/></hold-time></xsl:for-each>
    <xsl:for-each select="zr:advertisement-interval/zr:minimum-interval">
      <minimum-advertisement-interval><xsl:value-of select="."/></minimum-advertisement-interval>
    </xsl:for-each>
  </xsl:template>

  <xsl:template name="restart">
    <xsl:for-each select="zr:neighbor-graceful-restart"><enabled><xsl:value-of select=". != 'true'"/></enabled></xsl:for-each>
    <xsl:for-each select="zr:neighbor-graceful-restart-time">
      <restart-time><xsl:value-of select="."/></restart-time>
    </xsl:for-each>
    <xsl:for-each select="zr:neighbor-graceful-restart-stalepath-time">
      <stale-routes-time><xsl:value-of select="."/></stale-routes-time>
    </xsl:for-each>
  </xsl:template>

  <xsl:template match="zr:neighbor-afs">
    <afi-safis>
      <xsl:apply-templates select="zr:neighbor-af"/>
    </afi-safis>
  </xsl:template>

  <xsl:template match="zr:neighbor-af">
    <afi-safi>
      <xsl:call-template name="family-name"/>
      <config><xsl:call-template name="family"/></config>
      <state><xsl:call-template name="family"/></state>
      <xsl:for-each select="zr:maximum-prefixes">
        <xsl:element name="{../zr:af-name}">
          <prefix-limit>
            <config><xsl:call-template name="limit"/></config>
            <state><xsl:call-template name="limit"/></state>
          </prefix-limit>
        </xsl:element>
      </xsl:for-each>
      <apply-policy>
        <config><xsl:call-template name="policies"/></config>
        <state><xsl:call-template name="policies"/></state>
      </apply-policy>
    </afi-safi>
  </xsl:template>

  <xsl:template name="family-name">
    <afi-safi-name>
      <xsl:choose>
        <xsl:when test="zr:af-name = 'ipv4-unicast'">openconfig-bgp-types:IPV4_UNICAST</xsl:when>
        <xsl:otherwise>openconfig-bgp-types:IPV6_UNICAST</xsl:otherwise>
      </xsl:choose>
    </afi-safi-name>
  </xsl:template>

  <xsl:template name="family">
    <xsl:call-template name="family-name"/>
    <xsl:if test="zr:activate"><enabled>true</enabled></xsl:if>
  </xsl:template>

  <xsl:template name="limit">
    <xsl:for-each select="zr:prefix-limit"><max-prefixes><xsl:value-of select="."/></max-prefixes></xsl:for-each>
    <xsl:for-each select="zr:warning-percentage">
      <shutdown-threshold-pct><xsl:value-of select="."/></shutdown-threshold-pct>
    </xsl:for-each>
  </xsl:template>

  <xsl:template name="policies">
    <xsl:for-each select="zr:route-policy-in"><import-policy><xsl:value-of select="."/></import-policy></xsl:for-each>
    <xsl:for-each select="zr:route-policy-out"><export-policy><xsl:value-of select="."/></export-policy></xsl:for-each>
  </xsl:template>
</xsl:stylesheet>
