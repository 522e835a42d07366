<?xml version="1.0"?>
<!-- From OpenConfig neighbors to the native model's. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"
    xmlns="http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg"
    xmlns:oc="http://openconfig.net/yang/bgp" exclude-result-prefixes="oc">

  <xsl:template match="/oc:bgp">
    <bgp>
      <instance>
        <instance-name>default</instance-name>
        <instance-as>
          <as>0</as>
          <four-byte-as>
            <as>65001</as>
            <default-vrf>
              <bgp-entity>
                <neighbors>
                  <xsl:apply-templates select="oc:neighbors/oc:neighbor"/>
                </neighbors>
              </bgp-entity>
            </default-vrf>
          </four-byte-as>
        </instance-as>
      </instance>
    </bgp>
  </xsl:template>

  <xsl:template match="oc:neighbor">
    <neighbor>
      <xsl:apply-templates select="*"/>
    </neighbor>
  </xsl:template>

  <xsl:template match="oc:neighbor-address">
    <neighbor-address><xsl:value-of select="."/></neighbor-address>
  </xsl:template>

  <xsl:template match="oc:config|oc:timers|oc:transport|oc:graceful-restart|oc:apply-policy">
    <xsl:apply-templates select="*"/>
  </xsl:template>

  <xsl:template match="oc:peer-as">
    <remote-as>
      <as-xx>0</as-xx>
      <as-yy><xsl:value-of select="."/></as-yy>
    </remote-as>
  </xsl:template>

  <xsl:template match="oc:local-as">
    <local-as>
      <as-xx>0</as-xx>
      <as-yy><xsl:value-of select="."/></as-yy>
    </local-as>
  </xsl:template>

  <xsl:template match="oc:auth-password">
    <password>
      <password-disable>false</password-disable>
      <password><xsl:value-of select="."/></password>
    </password>
  </xsl:template>

  <xsl:template match="oc:description">
    <description><xsl:value-of select="."/></description>
  </xsl:template>

  <xsl:template match="oc:peer-group">
    <neighbor-group-add-member><xsl:value-of select="."/></neighbor-group-add-member>
  </xsl:template>

  <xsl:template match="oc:timers/oc:config">
    <timers>
      <xsl:for-each select="oc:hold-time"><hold-time><xsl:value-of select="."/></hold-time></xsl:for-each>
      <xsl:for-each select="oc:keepalive-interval">
        <keepalive-interval><xsl:value-of select="."/></keepalive-interval>
      </xsl:for-each>
    </timers>
    <xsl:for-each select="oc:minimum-advertisement-interval">
      <advertisement-interval>
        <minimum-interval><xsl:value-of select="."/></minimum-interval>
      </advertisement-interval>
    </xsl:for-each>
  </xsl:template>

  <xsl:template match="oc:tcp-mss">
    <tcpmss>
      <mss><xsl:value-of select="."/></mss>
    </tcpmss>
  </xsl:template>

  <xsl:template match="oc:passive-mode">
    <session-open-mode>
      <xsl:choose>
        <xsl:when test=". = 'true'">passive-only</xsl:when>
        <xsl:otherwise>active-only</xsl:otherwise>
      </xsl:choose>
    </session-open-mode>
  </xsl:template>

  <xsl:template match="oc:local-address">
    <local-address>
      <local-address-disable>false</local-address-disable>
      <local-ip-address><xsl:value-of select="."/></local-ip-address>
    </local-address>
    <update-source-interface/>
  </xsl:template>

  <xsl:template match="oc:ebgp-multihop">
    <ebgp-multihop>
      <max-hop-count>
        <xsl:choose>
          <xsl:when test="oc:config/oc:multihop-ttl"><xsl:value-of select="oc:config/oc:multihop-ttl"/></xsl:when>
          <xsl:otherwise>255</xsl:otherwise>
        </xsl:choose>
      </max-hop-count>
      <mpls-deactivation>false</mpls-deactivation>
    </ebgp-multihop>
  </xsl:template>

  <xsl:template match="oc:graceful-restart/oc:config/oc:enabled">
    <neighbor-graceful-restart>
      <xsl:choose>
        <xsl:when test=". = 'true'">false</xsl:when>
        <xsl:otherwise>true</xsl:otherwise>
      </xsl:choose>
    </neighbor-graceful-restart>
  </xsl:template>

  <xsl:template match="oc:restart-time">
    <neighbor-graceful-restart-time><xsl:value-of select="."/></neighbor-graceful-restart-time>
  </xsl:template>

  <xsl:template match="oc:stale-routes-time">
    <neighbor-graceful-restart-stalepath-time><xsl:value-of select="."/></neighbor-graceful-restart-stalepath-time>
  </xsl:template>

  <xsl:template match="oc:afi-safis">
    <neighbor-afs>
      <xsl:apply-templates select="oc:afi-safi"/>
    </neighbor-afs>
  </xsl:template>

  <xsl:template match="oc:afi-safi">
    <neighbor-af>
      <xsl:apply-templates select="*"/>
    </neighbor-af>
  </xsl:template>

  <xsl:template match="oc:afi-safi-name">
    <af-name>
      <xsl:choose>
        <xsl:when test="substring-after(., ':') = 'IPV4_UNICAST'">ipv4-unicast</xsl:when>
        <xsl:otherwise>ipv6-unicast</xsl:otherwise>
      </xsl:choose>
    </af-name>
  </xsl:template>

  <xsl:template match="oc:afi-safi/oc:config/oc:enabled">
    <activate/>
  </xsl:template>

  <xsl:template match="oc:import-policy">
    <route-policy-in><xsl:value-of select="."/></route-policy-in>
  </xsl:template>

  <xsl:template match="oc:export-policy">
    <route-policy-out><xsl:value-of select="."/></route-policy-out>
  </xsl:template>

  <xsl:template match="oc:prefix-limit">
    <maximum-prefixes>
      <xsl:for-each select="oc:config/oc:max-prefixes">
        <prefix-limit><xsl:value-of select="."/></prefix-limit>
        <warning-only>false</warning-only>
        <discard-extra-paths>false</discard-extra-paths>
      </xsl:for-each>
      <xsl:for-each select="oc:config/oc:shutdown-threshold-pct">
        <warning-percentage><xsl:value-of select="."/></warning-percentage>
      </xsl:for-each>
    </maximum-prefixes>
  </xsl:template>
</xsl:stylesheet>
