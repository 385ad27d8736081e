#!/usr/bin/env python3
"""Pulls every instance of every class from veldra-cimd in batches, one
context at a time, and reports how many came and the server's resident memory
at its highest while they did.

    pull.py PORT PID BATCH CLASS...
"""
import http.client
import re
import sys

port, pid, batch = int(sys.argv[1]), sys.argv[2], sys.argv[3]
classes = sys.argv[4:]

ENVELOPE = ('<?xml version="1.0" encoding="utf-8" ?><CIM CIMVERSION="2.0" DTDVERSION="2.0">'
            '<MESSAGE ID="1" PROTOCOLVERSION="1.0"><SIMPLEREQ><IMETHODCALL NAME="{0}"><LOCALNAMESPACEPATH>'
            '<NAMESPACE NAME="root"/><NAMESPACE NAME="mwq"/></LOCALNAMESPACEPATH>{1}</IMETHODCALL>'
            '</SIMPLEREQ></MESSAGE></CIM>')


def param(name, inner):
    return '<IPARAMVALUE NAME="{0}">{1}</IPARAMVALUE>'.format(name, inner)


def rss_mib():
    with open('/proc/%s/status' % pid) as status:
        for line in status:
            if line.startswith('VmRSS'):
                return int(line.split()[1]) // 1024
    return 0


connection = http.client.HTTPConnection('127.0.0.1', port, timeout=600)


def call(method, params):
    connection.request('POST', '/cimom', ENVELOPE.format(method, params).encode(), {
        'Content-Type': 'application/xml; charset="utf-8"', 'CIMOperation': 'MethodCall',
        'CIMMethod': method, 'CIMObject': 'root%2Fmwq'})
    text = connection.getresponse().read().decode()
    if '<ERROR ' in text:
        sys.exit('pull.py: %s answered %s' % (method, re.search(r'<ERROR [^>]*>', text).group(0)))
    count = text.count('<VALUE.INSTANCEWITHPATH>')
    end = '<VALUE>TRUE</VALUE>' in text.split('NAME="EndOfSequence"')[1][:80]
    context = re.search(r'NAME="EnumerationContext"[^>]*><VALUE>([^<]*)</VALUE>', text)
    return count, end, context.group(1) if context else None


total, peak, requests = 0, rss_mib(), 0
for cls in classes:
    count, end, context = call('OpenEnumerateInstances',
                               param('ClassName', '<CLASSNAME NAME="%s"/>' % cls) +
                               param('MaxObjectCount', '<VALUE>%s</VALUE>' % batch))
    total += count
    requests += 1
    peak = max(peak, rss_mib())
    while not end:
        count, end, context = call('PullInstancesWithPath',
                                   param('EnumerationContext', '<VALUE>%s</VALUE>' % context) +
                                   param('MaxObjectCount', '<VALUE>%s</VALUE>' % batch))
        total += count
        requests += 1
        peak = max(peak, rss_mib())
print('%d %d %d' % (total, requests, peak))
